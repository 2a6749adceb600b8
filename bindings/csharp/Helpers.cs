// What the methods of KORVELMathTools.cs stand on: rooms of arrays, texts, host arrays, labelled tables, missing cells.

using System;
using System.IO;
using System.Runtime.InteropServices;

namespace KORVEL
{
    /// <summary>Tables and missing cells.</summary>
    public static class Cells
    {
        /// <summary>The cells column after column, as the library takes them.</summary>
        public static T[] ByColumns<T>(T[,] table)
        {
            if (table == null) throw new ArgumentNullException("table");
            int rows = table.GetLength(0), columns = table.GetLength(1);
            var cells = new T[rows * columns];
            for (int j = 0; j < columns; ++j)
                for (int i = 0; i < rows; ++i) cells[j * rows + i] = table[i, j];
            return cells;
        }

        /// <summary>A table from its cells column after column.</summary>
        public static T[,] ToTable<T>(T[] cells, int rows, int columns)
        {
            Room.Check("ToTable", "cells", cells, rows, columns);
            var table = new T[rows, columns];
            for (int j = 0; j < columns; ++j)
                for (int i = 0; i < rows; ++i) table[i, j] = cells[j * rows + i];
            return table;
        }

        /// <summary>Whether a number is missing. A NaN is not.</summary>
        public static bool IsMissing(double cell)
        {
            return cell <= MathTools.KORVEL_MISSING_DBL;
        }

        /// <summary>A copy in which each NaN is a missing number.</summary>
        public static double[] FromNaN(double[] cells)
        {
            return Array.ConvertAll(cells, cell => double.IsNaN(cell) ? MathTools.KORVEL_MISSING_DBL : cell);
        }

        /// <summary>A copy in which each missing number is a NaN.</summary>
        public static double[] ToNaN(double[] cells)
        {
            return Array.ConvertAll(cells, cell => IsMissing(cell) ? double.NaN : cell);
        }

        /// <summary>A copy in which each null is a missing number.</summary>
        public static double[] FromNullable(double?[] cells)
        {
            return Array.ConvertAll(cells, cell => cell ?? MathTools.KORVEL_MISSING_DBL);
        }

        /// <summary>A copy in which each missing number is null.</summary>
        public static double?[] ToNullable(double[] cells)
        {
            return Array.ConvertAll(cells, cell => IsMissing(cell) ? (double?)null : cell);
        }
    }

    internal static class Room
    {
        /// <summary>Throws when an array is smaller than its counts say. A count below 0 is a mistake.</summary>
        internal static void Check(string function, string name, Array array, long rows, long columns, bool mayBeNull = false)
        {
            if (array == null && mayBeNull) return;
            if (rows < 0 || columns < 0)
                throw new ArgumentException(function + ": " + name + " cannot have " + rows + " by " + columns + " cells");
            decimal wanted = (decimal)rows * columns;
            if (array == null && wanted > 0) throw new ArgumentNullException(name, function + ": " + name + " is not given");
            if (array != null && array.LongLength < wanted)
                throw new ArgumentException(function + ": " + name + " has " + array.LongLength + " cells, not " + wanted);
        }

        internal static long Largest(int[] cells)
        {
            long largest = cells == null || cells.Length == 0 ? 0 : long.MinValue;
            foreach (int cell in cells ?? new int[0]) largest = Math.Max(largest, cell);
            return largest;
        }

        internal static long PositiveSum(int[] cells)
        {
            long sum = 0;
            foreach (int cell in cells ?? new int[0]) sum += Math.Max(cell, 0);
            return sum;
        }

        internal static long PositiveSum(double[] cells)
        {
            long sum = 0;
            foreach (double cell in cells ?? new double[0]) sum += cell >= 1 ? (long)cell : 0;
            return sum;
        }
    }

    /// <summary>The calls of the automation types: on Windows the system's, elsewhere those beside the library.</summary>
    internal static class Automation
    {
        private static readonly bool windows = Path.DirectorySeparatorChar == '\\';

        internal static IntPtr Make(string text)
        {
            if (text == null) throw new ArgumentNullException("text", "a text is not given");
            char[] letters = text.ToCharArray();
            uint length = (uint)letters.Length;
            IntPtr made = windows ? AllocOnWindows(letters, length) : Alloc(letters, length);
            if (made == IntPtr.Zero) throw new OutOfMemoryException();
            return made;
        }

        internal static void Free(IntPtr text)
        {
            if (windows) FreeOnWindows(text);
            else FreeText(text);
        }

        /// <summary>A copy. A null pointer is the empty text.</summary>
        internal static string Read(IntPtr text)
        {
            return text == IntPtr.Zero ? "" : Marshal.PtrToStringUni(text, Marshal.ReadInt32(text, -4) / 2);
        }

        [DllImport("KORVELAutomation", EntryPoint = "SysAllocStringLen", CharSet = CharSet.Unicode)]
        private static extern IntPtr Alloc(char[] letters, uint length);

        [DllImport("KORVELAutomation", EntryPoint = "SysFreeString")]
        private static extern void FreeText(IntPtr text);

        [DllImport("oleaut32", EntryPoint = "SysAllocStringLen", CharSet = CharSet.Unicode)]
        private static extern IntPtr AllocOnWindows(char[] letters, uint length);

        [DllImport("oleaut32", EntryPoint = "SysFreeString")]
        private static extern void FreeOnWindows(IntPtr text);
    }

    /// <summary>A block of texts, as the library takes them and replaces them.</summary>
    internal sealed class Texts : IDisposable
    {
        internal readonly IntPtr[] Cells;

        internal Texts(string function, string name, string[] texts)
        {
            int missing = texts == null ? -1 : Array.IndexOf(texts, null);
            if (missing >= 0) throw new ArgumentNullException(name, function + ": " + name + " has no text at " + missing);
            Cells = texts == null ? null : Array.ConvertAll(texts, Automation.Make);
        }

        internal void CopyTo(string[] texts)
        {
            for (int k = 0; Cells != null && k < Cells.Length; ++k) texts[k] = Automation.Read(Cells[k]);
        }

        /// <summary>A text that the library gives away.</summary>
        internal static string Take(IntPtr text)
        {
            string taken = Automation.Read(text);
            Automation.Free(text);
            return taken;
        }

        public void Dispose()
        {
            foreach (IntPtr text in Cells ?? new IntPtr[0]) Automation.Free(text);
        }
    }

    /// <summary>A host array over memory of its own, which the library does not resize.</summary>
    public sealed class HostArray : IDisposable
    {
        private const short FixedSize = 0x10;
        private const int Header = 24;
        private const int Dimension = 8;
        private readonly IntPtr[] address = new IntPtr[1];
        private readonly bool holdsTexts;
        private readonly HostArray[] columns = new HostArray[0];

        /// <summary>The descriptor, as fields of records have it.</summary>
        public IntPtr Descriptor { get { return address[0]; } }

        /// <summary>The number of elements.</summary>
        public int Length { get; private set; }

        internal IntPtr Data { get { return Marshal.ReadIntPtr(Descriptor, 16); } }

        /// <summary>An array of numbers.</summary>
        public HostArray(double[] cells) : this(cells, 8, cells.Length)
        {
            Marshal.Copy(cells, 0, Data, Length);
        }

        /// <summary>An array of integers.</summary>
        public HostArray(int[] cells) : this(cells, 4, cells.Length)
        {
            Marshal.Copy(cells, 0, Data, Length);
        }

        /// <summary>A table of integers.</summary>
        public HostArray(int[,] table) : this(table, 4, table.GetLength(0), table.GetLength(1))
        {
            Marshal.Copy(KORVEL.Cells.ByColumns(table), 0, Data, Length);
        }

        /// <summary>An array of Booleans, -1 and 0.</summary>
        public HostArray(short[] cells) : this(cells, 2, cells.Length)
        {
            Marshal.Copy(cells, 0, Data, Length);
        }

        /// <summary>An array of texts.</summary>
        public HostArray(string[] texts) : this(texts, IntPtr.Size, texts.Length)
        {
            holdsTexts = true;
            for (int k = 0; k < Length; ++k)
                Marshal.WriteIntPtr(Data, k * IntPtr.Size, Automation.Make(texts[k]));
        }

        /// <summary>A chunked table of numbers.</summary>
        public HostArray(double[][] table) : this(Array.ConvertAll(table, column => new HostArray(column)), false)
        {
        }

        /// <summary>A chunked table of texts.</summary>
        public HostArray(string[][] table) : this(Array.ConvertAll(table, column => new HostArray(column)), true)
        {
        }

        private HostArray(HostArray[] columns, bool texts) : this(Array.ConvertAll(columns, column => new Hostarray {
            numbers = texts ? IntPtr.Zero : column.Descriptor, texts = texts ? column.Descriptor : IntPtr.Zero }))
        {
            this.columns = columns;
        }

        internal HostArray(Hostarray[] records) : this(records, Marshal.SizeOf(typeof(Hostarray)), records.Length)
        {
            Store(records);
        }

        internal HostArray(ST_Vect[] records) : this(records, Marshal.SizeOf(typeof(ST_Vect)), records.Length)
        {
            Store(records);
        }

        private HostArray(Array cells, int size, params int[] counts)
        {
            Length = cells.Length;
            address[0] = Marshal.AllocHGlobal(Header + Dimension * counts.Length);
            Marshal.WriteInt16(Descriptor, 0, (short)counts.Length);
            Marshal.WriteInt16(Descriptor, 2, FixedSize);
            Marshal.WriteInt32(Descriptor, 4, size);
            Marshal.WriteInt32(Descriptor, 8, 0);
            Marshal.WriteIntPtr(Descriptor, 16, Marshal.AllocHGlobal(Math.Max(1, Length * size)));
            for (int k = 0; k < counts.Length; ++k)
            {
                // The rightmost dimension comes first.
                Marshal.WriteInt32(Descriptor, Header + Dimension * k, counts[counts.Length - 1 - k]);
                Marshal.WriteInt32(Descriptor, Header + Dimension * k + 4, 1);
            }
        }

        private void Store<T>(T[] records)
        {
            for (int k = 0; k < records.Length; ++k)
                Marshal.StructureToPtr(records[k], new IntPtr(Data.ToInt64() + k * Marshal.SizeOf(typeof(T))), false);
        }

        /// <summary>The numbers that it holds now.</summary>
        public double[] Numbers()
        {
            var cells = new double[Length];
            Marshal.Copy(Data, cells, 0, Length);
            return cells;
        }

        /// <summary>The integers that it holds now, column after column.</summary>
        public int[] Integers()
        {
            var cells = new int[Length];
            Marshal.Copy(Data, cells, 0, Length);
            return cells;
        }

        /// <summary>The texts that it holds now.</summary>
        public string[] Strings()
        {
            var texts = new string[Length];
            for (int k = 0; k < Length; ++k) texts[k] = Automation.Read(Marshal.ReadIntPtr(Data, k * IntPtr.Size));
            return texts;
        }

        /// <summary>A column of a chunked table, from 0.</summary>
        public HostArray this[int column] { get { return columns[column]; } }

        /// <summary>The address of the pointer to the descriptor.</summary>
        internal static IntPtr[] Of(HostArray array)
        {
            return array == null ? null : array.address;
        }

        /// <summary>Frees all that it holds.</summary>
        public void Dispose()
        {
            if (Descriptor == IntPtr.Zero) return;
            for (int k = 0; holdsTexts && k < Length; ++k) Automation.Free(Marshal.ReadIntPtr(Data, k * IntPtr.Size));
            foreach (HostArray column in columns) column.Dispose();
            Marshal.FreeHGlobal(Data);
            Marshal.FreeHGlobal(Descriptor);
            address[0] = IntPtr.Zero;
        }
    }

    /// <summary>A table of labelled columns; its record is handed over by `ref table.Record`.</summary>
    public sealed class LabelledTable : IDisposable
    {
        private readonly HostArray[] columns;
        private readonly HostArray counts, vectors, labels;

        /// <summary>The record.</summary>
        public ST_MVect Record;

        /// <summary>A table of numbers.</summary>
        public LabelledTable(string[] labels, double[][] columns)
            : this(labels, columns, Array.ConvertAll(columns, column => new HostArray(column)))
        {
        }

        /// <summary>A table of texts.</summary>
        public LabelledTable(string[] labels, string[][] columns)
            : this(labels, columns, Array.ConvertAll(columns, column => new HostArray(column)))
        {
        }

        private LabelledTable(string[] labels, Array[] cells, HostArray[] columns)
        {
            if (labels.Length != columns.Length)
            {
                foreach (HostArray column in columns) column.Dispose();
                throw new ArgumentException("LabelledTable: " + labels.Length + " labels for " + columns.Length + " columns");
            }
            this.columns = columns;
            int[] lengths = Array.ConvertAll(cells, column => column.Length);
            var records = new ST_Vect[columns.Length];
            for (int j = 0; j < columns.Length; ++j)
                records[j] = new ST_Vect {
                    Count = lengths[j], Label = Automation.Make(labels[j]), Vect = columns[j].Descriptor };
            counts = new HostArray(lengths);
            vectors = new HostArray(records);
            this.labels = new HostArray(labels);
            foreach (int length in lengths) Record.nbrowsmax = Math.Max(Record.nbrowsmax, length);
            Record.nbcols = columns.Length;
            Record.samenbrows = (short)(Array.TrueForAll(lengths, length => length == Record.nbrowsmax) ? -1 : 0);
            Record.nbrows = counts.Descriptor;
            Record.Vectors = vectors.Descriptor;
            Record.CLabels = this.labels.Descriptor;
        }

        /// <summary>A column, from 0.</summary>
        public HostArray this[int column] { get { return columns[column]; } }

        /// <summary>Frees all that it holds.</summary>
        public void Dispose()
        {
            if (vectors.Descriptor == IntPtr.Zero) return;
            for (int j = 0; j < columns.Length; ++j)
                Automation.Free(Marshal.ReadIntPtr(vectors.Data, j * Marshal.SizeOf(typeof(ST_Vect)) + IntPtr.Size));
            foreach (HostArray column in columns) column.Dispose();
            foreach (HostArray array in new[] { counts, vectors, labels }) array.Dispose();
        }
    }
}
