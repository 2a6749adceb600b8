# shellcheck shell=bash
# Cases of the report program: files that are read as tables, and files that are none.

case_missing_file() { refuses nowhere.csv "no such file"; }
case_directory() {
    mkdir folder
    refuses folder "is a directory, not a file"
}
case_unreadable_file() {
    [ -e /proc/self/mem ] && [[ "${report[*]}" != *.exe* ]] || return 0
    refuses /proc/self/mem "cannot be read: Input/output error"
}
case_empty_file() {
    : >data.csv
    refuses data.csv "is empty"
}
case_blank_file() {
    printf '\xef\xbb\xbf\r\n  \n\n' >data.csv
    refuses data.csv "is empty"
}
case_header_only() {
    printf 'a,b\n\n' >data.csv
    refuses data.csv "has a header and no rows"
}
case_short_row() {
    printf 'a,b,c\n1,2,3\n\n4,5\n' >data.csv
    refuses data.csv "line 4 has 2 cells, the header has 3"
}
case_long_row() {
    printf 'a\n1\n"2\n2",3\n' >data.csv
    refuses data.csv "line 3 has 2 cells, the header has 1"
}
case_line_numbers_count_lines_in_quotes() {
    printf 'a,b\n"1\n1",2\n3\n' >data.csv
    refuses data.csv "line 4 has 1 cell, the header has 2"
}
case_open_quote() {
    printf 'a,b\n1,2\n3,"4\n5,6\n' >data.csv
    refuses data.csv "line 3: a quoted cell is not closed"
}
case_utf_16_and_32() {
    printf '\xff\xfea\0,\0b\0\n\0' >data.csv
    refuses data.csv "is in UTF-16, as its first bytes tell (FF FE); save it as UTF-8"
    printf '\xfe\xff\0a\0,\0b\0\n' >data.csv
    refuses data.csv "is in UTF-16, as its first bytes tell (FE FF); save it as UTF-8"
    printf '\xff\xfe\0\0a\0\0\0' >data.csv
    refuses data.csv "is in UTF-32, as its first bytes tell (FF FE 00 00); save it as UTF-8"
}
case_zero_byte() {
    printf 'a,b\n1,\0\n' >data.csv
    refuses data.csv "is no text in UTF-8: line 2, byte 7 of the file is zero, as in UTF-16"
}
case_good_files_are_reported_beside_bad_ones() {
    plain 'a\n1\n'
    runs 1 nowhere.csv plain/data.csv
    grep -q '^data.csv, 1 row, 1 column of numbers$' out || failed "no report on the good file"
    diff - err <<<"report: nowhere.csv: no such file" || failed "another message than expected"
}
case_line_ends_and_byte_order_mark() {
    plain 'a,b\n1,x\n2,\n'
    printf '\xef\xbb\xbfa,b\r\n1,x\r2,' >data.csv
    same_as_plain
}
case_quoted_cells() {
    plain 'a,b\n1.5,x\n2,y\n,y\n'
    printf '"a", "b"\n"1.5", "x"\n2 ,y  \n"", y\n' >data.csv
    same_as_plain
}
case_semicolons_and_decimal_commas() {
    plain 'a,b\n1.25,-3e2\n+2.5,NA\n'
    printf 'a;b\n1,25;-3e2\n+2,5;NA\n' >data.csv
    same_as_plain
}
case_tabs() {
    plain 'a,b,c\n1,,x\n,2,y\n'
    printf 'a\tb\tc\n1\t\tx\n\t2\ty\n' >data.csv
    same_as_plain
}
case_separators_in_quotes_do_not_count() {
    plain 'a 1,b\n1,2\n'
    printf '\n"a 1";b\n1;2\n' >data.csv
    same_as_plain
    printf '"a;;;b",c\n1,2\n' >data.csv
    runs 0 data.csv
    grep -q '2 columns of numbers$' out || failed "separators inside quotes were counted"
}
case_latin_1() {
    plain 'm\xc3\xbc\xc3\x9f,b\n1,\xc3\xa9\n'
    printf 'm\xfc\xdf,b\n1,\xe9\n' >data.csv
    runs 0 plain/data.csv
    mv out expected
    runs 0 data.csv
    diff - <(section Notes) <<END || failed "another note"
Notes on the file
  The file is not in UTF-8 (line 1, byte 2 of the file, is FC). It was read as Windows-1252, of
  which Latin-1 is a part.
END
    diff expected <(sed '/^Notes/,/^$/d' out) || failed "another report than on the plain file"
}
case_windows_1252() {
    printf 'a\n\x80 1\n\x93x\x94\n\x80 1\n' >data.csv
    runs 0 data.csv
    grep -qE '^  a +3 +0 +2 +€ 1$' out || failed "another mode: $(cat out)"
    grep -q '“x”' out || failed "other quotes"
}
case_empty_lines_are_cells_in_a_file_of_one_column() {
    plain 'a\n1\nNA\n2\n'
    printf 'a\n1\n\n2\n\n\n' >data.csv
    same_as_plain
}
case_unreadable_numbers_are_text() {
    local cell
    for cell in 1x 1e999 0x10 inf nan 1,2,3 --1 +-1 1.2.3 '1 2'; do
        printf 'a;b\n1;"%s"\n2;3\n' "$cell" >data.csv
        runs 0 data.csv
        grep -q '1 column of numbers, 1 column of text$' out || failed "'$cell' was taken for a number"
    done
}
# numbers_are SEPARATOR CELLS VALUES: a column of these cells, separated by blanks, must be these numbers.
numbers_are() {
    {
        echo "a$1b"
        for cell in $2; do echo "\"${cell//_/ }\"${1}1"; done
    } >data.csv
    {
        echo a,b
        for value in $3; do echo "$value,1"; done
    } >plain.csv
    runs 0 plain.csv
    sed 's/^plain/data/; s/^=*$/=/' out >expected
    runs 0 data.csv
    diff expected <(sed '/^Notes/,/^$/d; s/^=*$/=/' out) || failed "'$2' are other numbers than $3"
}
case_grouped_thousands() {
    numbers_are ',' '1,234.5 0.25 -1,234,567.25' '1234.5 0.25 -1234567.25'
    grep -qxF '  Column a has numbers with commas between thousands: "1,234.5" was read as 1234.5.' out || failed "not told"
    numbers_are ',' '1,234 12,345' '1234 12345'
    numbers_are ',' '1,5 12,345' '1.5 12.345'
    numbers_are ',' '0,123 12,345' '0.123 12.345'
    numbers_are ';' '1.234,5 7 1.234.567,25' '1234.5 7 1234567.25'
    numbers_are ';' '1_234,5 -12_345' '1234.5 -12345'
    numbers_are ';' $'1\xe2\x80\xaf234,5 1\xc2\xa0234,5 \xe2\x88\x922' '1234.5 1234.5 -2'
    numbers_are '|' "1'234.5 2" '1234.5 2'
    # What may be read in two ways is read by the file's own way of writing.
    numbers_are ';' '1,234 12,345' '1.234 12.345'
}
case_groups_must_be_of_three_digits() {
    local cells
    for cells in '1,23,456.5 1' '1,2345.5 1' '1234,567.5 1' ',123.5 1' '1,234.5 1.234,5'; do
        {
            echo a
            for cell in $cells; do echo "\"$cell\""; done
        } >data.csv
        runs 0 data.csv
        grep -q '^data.csv, 2 rows, 1 column of text$' out || failed "$cells were taken for numbers"
    done
}
case_separators_of_every_kind() {
    local first separator
    plain 'a 1,b\n1.5,x\n2,\n'
    for separator in ',' ';' '\t' '|'; do
        printf "a 1${separator}b\n1.5${separator}x\n2${separator}\n" >data.csv
        same_as_plain
    done
    for first in 'sep=:' '"sep=:"' 'SEP=:'; do
        printf '%s\r\na 1:b\n1.5:x\n2:\n' "$first" >data.csv
        same_as_plain
    done
    printf 'sep=;\na;b\n1;2\n3\n' >data.csv
    refuses data.csv "line 4 has 1 cell, the header has 2"
}
case_separator_that_is_told() {
    printf 'a,b;c\n1,2;3\n' >data.csv
    runs 0 data.csv --separator ';'
    grep -q '^data.csv, 1 row, 2 columns of numbers$' out || failed "other columns by semicolons"
    printf 'a,b\tc\n1,2\t3\n' >data.csv
    runs 0 data.csv --separator tab
    grep -q '^data.csv, 1 row, 2 columns of numbers$' out || failed "other columns by tabs"
    printf 'a b\n1 2\n' >data.csv
    runs 0 data.csv --separator ' '
    grep -q '^data.csv, 1 row, 2 columns of numbers$' out || failed "other columns by blanks"
}
case_missing_texts() {
    plain 'a,b\n1,x\n,y\n,\n,\n,y\n2,\n'
    printf 'a,b\n1,x\nNA,y\nN/A,.\n.,NA\n"null",y\n2,"N/A"\n' >data.csv
    same_as_plain
    printf 'a,b\n1,x\n-999,y\n-999,?\n,?\n-999,y\n2,?\n' >data.csv
    runs 0 plain/data.csv
    mv out expected
    runs 0 data.csv --missing -999 --missing '?'
    diff expected out || failed "another report with missing texts of its own"
    printf 'a\n1\nNA\n' >data.csv
    runs 0 data.csv --missing '?'
    grep -q '1 column of text$' out || failed "NA is missing though another text is told"
}
case_hint_at_a_column_that_is_nearly_of_numbers() {
    { echo a,b; for k in {1..9}; do echo "$k,x$k"; done; echo '?,1'; } >data.csv
    runs 0 data.csv
    section Notes | tr '\n' ' ' | tr -s ' ' | grep -qF 'Column a was taken for texts, but 9 of its 10 cells are numbers. The first other one is "?" in row 10. If it stands for a missing number: --missing "?".' ||
        failed "no hint: $(cat out)"
    ! grep -q 'Column b' out || failed "a hint at a column of texts"
}
case_dates() {
    local separator
    cat >data.csv <<END
iso,german,time,slash,american,dash
2024-02-29,31.12.1999,2024-01-01 06:00,2024/01/05,12/31/2023,31-12-2023
NA,1.1.2000,2024-01-03T18:00:00Z,2024/1/1,1/15/2024,01-01-2024
1969-12-31,02.01.2000,2024-01-02 23:59:59.5,2024/01/02,2/1/2024,02-01-2024
END
    runs 0 data.csv
    grep -q '^data.csv, 3 rows, 6 columns of dates$' out || failed "other columns: $(head -n 1 out)"
    diff - <(section Dates) <<END || failed "other dates"
Dates
  column    n  missing  first                last                 days between  read as
  iso       2        1  1969-12-31           2024-02-29               19783     year-month-day
  german    3        0  1999-12-31           2000-01-02                   2     day.month.year
  time      3        0  2024-01-01 06:00:00  2024-01-03 18:00:00          2.50  year-month-day
  slash     3        0  2024-01-01           2024-01-05                   4     year/month/day
  american  3        0  2023-12-31           2024-02-01                  32     month/day/year
  dash      3        0  2023-12-31           2024-01-02                   2     day-month-year
END
    grep -qE '^  iso +1 +33\.3$' out || failed "no missing date"
}
case_dates_that_may_be_read_in_two_ways() {
    printf 'd\n01/02/2024\n03/04/2024\n' >data.csv
    runs 0 data.csv
    section Notes | tr '\n' ' ' | tr -s ' ' | grep -qF 'Column d has dates that may also be read as month/day/year; they were read as day/month/year.' ||
        failed "not told: $(cat out)"
}
case_days_that_are_none_are_texts() {
    local day
    for day in 2023-02-29 2024-13-01 31.04.2024 2024-1 2024-01-01x '2024-01-01 25:00' '2024-01-01 10:60'; do
        printf 'd\n%s\n2024-01-02\n' "$day" >data.csv
        runs 0 data.csv
        grep -q '1 column of text$' out || failed "$day was taken for a date"
    done
}
case_header_without_names() {
    plain '(column 1),(column 2)\n1,2\n'
    printf ',\n1,2\n' >data.csv
    same_as_plain
}
