// Calls the library from C#: every entry point, numbers, texts, tables, records, and mistakes. Prints what is wrong.

using System;
using System.Collections.Generic;
using System.Linq;
using System.Reflection;
using System.Runtime.InteropServices;
using KORVEL;

internal static class Test
{
    private static int wrong;

    private static void Same<T>(string what, T found, T expected)
    {
        if (EqualityComparer<T>.Default.Equals(found, expected)) return;
        Console.WriteLine(what + ": " + found + ", not " + expected);
        ++wrong;
    }

    private static void SameCells<T>(string what, IEnumerable<T> found, params T[] expected)
    {
        Same(what, string.Join(" ", found), string.Join(" ", expected));
    }

    private static void Refused<E>(string message, Action action) where E : Exception
    {
        try
        {
            action();
            Console.WriteLine("not refused: " + message);
            ++wrong;
        }
        catch (E error)
        {
            Same("message", error.Message.Split('\n')[0], message);
        }
    }

    [DllImport("KORVELMathTools")]
    private static extern int VB_Nothing();

    [DllImport("KORVELAutomation")]
    private static extern void KorvelReadAutomationCounters(long[] madeAndFreed);

    private static long TextsAlive()
    {
        var counters = new long[7];
        KorvelReadAutomationCounters(counters);
        return counters[0] - counters[1];
    }

    private static void EveryFunctionIsFound()
    {
        var flags = BindingFlags.Static | BindingFlags.NonPublic;
        MethodInfo[] all = typeof(MathTools).Assembly.GetType("KORVEL.Native").GetMethods(flags);
        Same("all functions", all.Length > 600, true);
        foreach (MethodInfo one in all)
        {
            try
            {
                Marshal.Prelink(one);
            }
            catch (Exception error)
            {
                Same(one.Name, error.Message, "found");
            }
            Same(one.Name + " has a method", typeof(MathTools).GetMethod(one.Name) != null, true);
        }
        try
        {
            Marshal.Prelink(typeof(Test).GetMethod("VB_Nothing", flags));
            Same("a function that is not there", "found", "missed");
        }
        catch (EntryPointNotFoundException)
        {
        }
        string[] version = MathTools.Version.Split('.');
        Same("version", MathTools.KORVEL_Version(),
            10000 * int.Parse(version[0]) + 100 * int.Parse(version[1]) + int.Parse(version[2]));
    }

    private static void Numbers()
    {
        Same("sum", MathTools.VB_V_Sum(new[] { 1.0, 2, 4 }, 3, null, new[] { 1, 1, 0.5 }), 5.0);
        Same("sum with flags", MathTools.VB_V_Sum(new[] { 1.0, 2, 4 }, 3, new short[] { 0, -1, 0 }, new[] { 1.0, 1, 1 }), 5.0);
        double smallest, largest;
        MathTools.VB_V_MinMax(new[] { 3, MathTools.KORVEL_MISSING_DBL, -1 }, 3, out smallest, out largest, new short[3]);
        Same("smallest", smallest, -1.0);
        Same("largest", largest, 3.0);
        double mean, deviation;
        double[] heights = Cells.FromNullable(new double?[] { 1.62, null, 1.8 });
        MathTools.VB_V_MeanStdev(heights, 3, out mean, out deviation, new short[3], new[] { 1.0, 1, 1 }, -1, -1);
        Same("mean", Math.Round(mean, 12), 1.71);
        Same("deviation", Math.Round(deviation, 12), Math.Round(0.18 / Math.Sqrt(2), 12));
        double[,] a = { { 1, 2 }, { 3, 4 }, { 5, 6 } }, b = { { 0, 1 }, { 1, 2 } };
        var product = new double[6];
        MathTools.VB_M_ProductAB(Cells.ByColumns(a), 3, 2, Cells.ByColumns(b), 2, product);
        SameCells("product", Cells.ToTable(product, 3, 2).Cast<double>(), 2, 5, 4, 11, 6, 17);
    }

    private static void MissingCells()
    {
        double[] cells = Cells.FromNaN(new[] { 1, double.NaN });
        Same("missing", MathTools.VB_IsMissingValueDbl(cells[1]), (short)-1);
        SameCells("NaN", Cells.ToNaN(cells), 1, double.NaN);
        SameCells("null", Cells.ToNullable(Cells.FromNullable(new double?[] { null, 2 })), null, 2);
        Same("integer", MathTools.KORVEL_MISSING_LNG, int.MinValue);
    }

    private static void TextArrays()
    {
        string[] texts = { "pear", "apple", "\u03b1\ud83c\udf4e", "", "ab" };
        MathTools.VB_SortQVectorStr(texts, 5, 1, 5, 0);
        SameCells("sorted", texts, "", "ab", "apple", "pear", "\u03b1\ud83c\udf4e");
        MathTools.VB_V_SetToValueStr(texts, 2, "x");
        SameCells("set", texts, "x", "x", "apple", "pear", "\u03b1\ud83c\udf4e");
        Same("constant", MathTools.VB_V_IsConstantStr(new[] { "a", "a" }, 2, 0), (short)-1);
        Same("ranges", MathTools.SimplifyRange("'S'!$C:$C,'S'!$B:$B"), "'S'!$B:$C");
    }

    private static void Records()
    {
        SameCells("sizes", new[] { typeof(Hostarray), typeof(ST_Vect), typeof(ST_MVect), typeof(ST_QualiInfo) }.Select(
            record => Marshal.SizeOf(record)), 16, 24, 40, 208);
        SameCells("places", new[] { "SumW", "NbCatTotal", "CatFreq", "withRecode", "Codes", "CheckType" }.Select(
            field => (int)Marshal.OffsetOf(typeof(ST_QualiInfo), field)), 8, 32, 80, 178, 184, 204);
        using (var data = new LabelledTable(new[] { "x", "y" }, new[] { new[] { 1.0, 2, 3, 4 }, new[] { 2.0, 5, 6, 8 } }))
        using (var correlations = new LabelledTable(new[] { "x", "y" }, new[] { new double[2], new double[2] }))
        {
            MathTools.Cpp_M_CovCorr_ST(ref data.Record, 4, 2, ref correlations.Record, -1, null, new[] { 1.0, 1, 1, 1 }, -1, -1, 0);
            Same("correlation", Math.Round(correlations[0].Numbers()[1], 4), 0.9812);
            Same("rows", data.Record.nbrowsmax, 4);
        }
        using (var table = new LabelledTable(new[] { "t" }, new[] { new[] { "a", "", "c" } }))
        {
            MathTools.Cpp_M_ReplaceMissingByStr_ST(ref table.Record, 3, 1, "b");
            SameCells("texts of a record", table[0].Strings(), "a", "b", "c");
        }
        using (var array = new HostArray(new[] { 1.5, 2, 4 })) Same("host array", MathTools.Cpp_V_Sum2Dbl_ST(array, 3), 7.5);
        using (var flags = new HostArray(new short[] { -1, 0, -1 })) Same("flags", MathTools.Cpp_V_NbTrue_ST(flags, 3), 2);
        using (var table = new HostArray(new[,] { { 30, 3 }, { 10, 1 }, { 20, 2 } }))
        {
            int[] key = { 3, 1, 2 };
            MathTools.Cpp_SortQLng_ST(table, 3, 2, 1, 3, key, null, -1, 0, -1);
            SameCells("integers", table.Integers(), 10, 20, 30, 1, 2, 3);
            SameCells("key", key, 1, 2, 3);
        }
        using (var chunks = new HostArray(new[] { new[] { 3.0, 1, 2 }, new[] { 5.0, 7, 6 } }))
        {
            double[] least = new double[2], most = new double[2];
            MathTools.VB_M_MinMaxSPV(chunks, 3, 2, least, most, null, -1);
            SameCells("smallest of chunks", least, 1, 5);
            SameCells("largest of chunks", most, 3, 7);
            MathTools.VB_M_Center2SPV(chunks, 3, 2);
            SameCells("centred chunks", chunks[1].Numbers(), -1, 1, 0);
        }
        using (var names = new HostArray(new[] { new[] { "a", "b" } }))
        using (var sample = new HostArray(new[] { new string[] { "", "", "" } }))
        {
            var selected = new double[3];
            MathTools.VB_M_SampleUserDefinedSPV(names, 2, 1, sample, new[] { 1, 2.9 }, selected);
            SameCells("text chunks", sample[0].Strings(), "a", "b", "b");
        }
    }

    private static void Mistakes()
    {
        double[] x = { 1, 2 };
        Refused<ArgumentException>("VB_V_Sum: x has 2 cells, not 3", () => MathTools.VB_V_Sum(x, 3, null, x));
        Refused<ArgumentException>("VB_V_Sum: x cannot have -1 by 1 cells", () => MathTools.VB_V_Sum(x, -1, null, x));
        Refused<ArgumentNullException>("VB_V_Sum: w is not given", () => MathTools.VB_V_Sum(x, 2, null, null));
        Refused<ArgumentException>("VB_M_ProductAB: b has 2 cells, not 4",
            () => MathTools.VB_M_ProductAB(x, 1, 2, x, 2, new double[2]));
        Refused<ArgumentException>("VB_M_ProductAB: c has 1 cells, not 2",
            () => MathTools.VB_M_ProductAB(x, 2, 1, x, 1, new double[1]));
        Refused<ArgumentException>("RunOLSBasic: coefficients has 2 cells, not 4",
            () => MathTools.RunOLSBasic(1, 2, x, x, x, 1, -1, 0, 1e-8, x, x));
        Refused<ArgumentNullException>("VB_V_SetToValueStr: x has no text at 1",
            () => MathTools.VB_V_SetToValueStr(new[] { "a", null }, 2, "x"));
        Refused<ArgumentException>("ToTable: cells has 2 cells, not 4", () => Cells.ToTable(x, 2, 2));
        Refused<ArgumentException>("LabelledTable: 2 labels for 1 columns",
            () => new LabelledTable(new[] { "a", "b" }, new[] { x }));
    }

    private static int Main()
    {
        EveryFunctionIsFound();
        Numbers();
        MissingCells();
        TextArrays();
        Records();
        Mistakes();
        Same("texts left behind", TextsAlive(), 0);
        Console.WriteLine(wrong == 0 ? "all as it should be" : wrong + " wrong");
        return wrong == 0 ? 0 : 1;
    }
}
