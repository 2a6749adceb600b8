# shellcheck shell=bash
# Cases of the report program: what it finds in a table.

case_shipped_data() {
    local file
    for file in "$shipped"/*.csv; do
        runs 0 "$file"
        [ ! -s err ] || failed "$file: $(cat err)"
        grep -q "^$(basename "$file"), [0-9]* rows, " out || failed "$file: no title"
        grep -q '^Numbers$' out || failed "$file: no section on numbers"
    done
}
# The figures were held against R 4.2.2: airquality.R prints them.
case_report_on_air_quality() {
    runs 0 "$shipped/airquality.csv"
    diff "$here/airquality.report" out || failed "another report than expected"
}
case_report_on_mixed_columns() {
    runs 0 "$here/mixed.csv"
    diff "$here/mixed.report" out || failed "another report than expected"
}
# section TITLE: the lines of that section.
section() {
    sed -n "/^$1/,/^\$/{/./p}" out
}
# By hand: the lines of each feed in the file.
case_categories_of_feeds() {
    runs 0 "$shipped/chickwts.csv"
    diff - <(section Texts) <<END || failed "another count of categories"
Texts
  column   n  missing  categories  mode
  feed    71        0           6  soybean
END
    diff - <(section Categories) <<END || failed "another inventory"
Categories, with their share of the texts that are not missing
  column  category    n  % of n
  feed    soybean    14    19.7
          linseed    12    16.9
          sunflower  12    16.9
          casein     12    16.9
          meatmeal   11    15.5
          horsebean  10    14.1
END
}
# Shares are of the texts that are there: 3, 2, 2 and 1 of 8 in the first column. The second has
# 13 texts, of which the ten categories that are listed leave 2.
case_categories_beside_missing_texts() {
    local k
    {
        echo few,many,once
        for k in "bé b" a c NA "bé b" c "" a d "bé b"; do echo "$k"; done |
            paste -d, - <(printf 'x%s\n' 1 2 3 4 5 6 7 8 9 10) <(printf 'z%s\n' {1..10})
        printf '%s\n' NA,x11,z11 ,x11,z12 NA,x12,z13
    } >data.csv
    runs 0 data.csv
    diff - <(section Texts) <<END || failed "another count of categories"
Texts
  column   n  missing  categories  mode
  few      8        5           4  bé b
  many    13        0          12  x11
  once    13        0          13  (each once)
END
    diff - <(section Categories) <<END || failed "another inventory"
Categories, with their share of the texts that are not missing
  column  category  n  % of n
  few     bé b      3    37.5
          a         2    25.0
          c         2    25.0
          d         1    12.5
  many    x11       2    15.4
          x1        1     7.7
          x2        1     7.7
          x3        1     7.7
          x4        1     7.7
          x5        1     7.7
          x6        1     7.7
          x7        1     7.7
          x8        1     7.7
          x9        1     7.7
          (2 more)  2    15.4
END
}
# Characters of one to four bytes, and of one and two units of UTF-16.
case_categories_of_any_characters() {
    printf 'a\n\x7f\n\xc2\x80\n\xdf\xbf\n\xe0\xa0\x80\n\xef\xbf\xbd\n\xf0\x90\x80\x80\n\xf4\x8f\xbf\xbd\n' >data.csv
    printf '\xf0\x9f\x98\x80 \xe2\x82\xac\n\xf0\x9f\x98\x80 \xe2\x82\xac\n' >>data.csv
    runs 0 data.csv
    section Categories >categories
    local text
    for text in $'\xdf\xbf' $'\xe0\xa0\x80' $'\xef\xbf\xbd' $'\xf0\x90\x80\x80' $'\xf4\x8f\xbf\xbd'; do
        LC_ALL=C grep -qE "^ +$text +1 +11\.1\$" categories || failed "another character than $text"
    done
    LC_ALL=C grep -qE $'^  a +\xf0\x9f\x98\x80 \xe2\x82\xac +2 +22\.2$' categories || failed "another most frequent text"
}
case_no_categories_without_equal_texts() {
    runs 0 "$shipped/mtcars.csv"
    grep -qE '^  model +32 +0 +32  \(each once\)$' out || failed "no line on the names"
    ! grep -q '^Categories' out || failed "an inventory of names"
}
# whole_section TITLE: from that line on to the next title, with the blank lines between tables.
whole_section() { awk -v title="$1" '/^[^ ]/ { inside = index($0, title) == 1 } inside' out; }
# The figures were held against R 4.2.2: regression.R prints them.
case_regression_of_cars() {
    runs 0 "$shipped/mtcars.csv" --y mpg
    diff "$here/mtcars.regression" <(whole_section Regression) || failed "another regression than expected"
}
case_regression_on_complete_rows() {
    runs 0 --y Ozone "$shipped/airquality.csv"
    diff "$here/airquality.regression" <(whole_section Regression) || failed "another regression than expected"
}
case_regression_of_each_file() {
    printf 'y,x\n1,2\n3,3\n4,7\n' >first.csv
    printf 'z,x\n1,2\n3,3\n4,7\n' >second.csv
    runs 1 first.csv second.csv --y y
    grep -q '^Regression of y ' out || failed "no regression on the first file"
    diff - err <<<"report: second.csv: has no column y" || failed "another message than expected"
}
case_regression_leaves_a_column_out() {
    printf 'y,a,b,c\n1,1,2,5\n3,2,4,5\n4,3,6,5\n8,4,8,5\n' >data.csv
    runs 0 data.csv --y y
    grep -qE '^  a +2\.2000 ' out || failed "no coefficient of the first column"
    grep -qE '^  b +left out +- +- +0 +-$' out || failed "the same column again was not left out"
    grep -qE '^  c +left out +- +- +0 +-$' out || failed "a constant column was not left out"
    grep -q 'A column is left out when it is constant' out || failed "no reason"
}
case_regression_without_freedom() {
    printf 'y,x\n1,2\n3,3\n' >data.csv
    runs 0 data.csv --y y
    grep -qE '^  x +2\.0000 +- +- ' out || failed "an error without degrees of freedom"
    grep -qE '^  residual deviation +-$' out || failed "a deviation without degrees of freedom"
}
case_column_that_is_not_there() {
    cp "$shipped/mtcars.csv" data.csv
    refuses data.csv "has no column speed" --y speed
}
case_column_of_texts() {
    cp "$shipped/iris.csv" data.csv
    refuses data.csv "column Species holds texts, not numbers" --y Species
}
case_no_other_column() {
    printf 'y,name\n1,a\n3,b\n' >data.csv
    refuses data.csv "has no other column of numbers to fit y to" --y y
}
case_no_complete_rows() {
    printf 'y,x\n1,2\n3,\n,4\n' >data.csv
    refuses data.csv "has fewer than two rows without a missing number" --y y
}
# By R 4.2.2: tapply over the feeds of length, mean, sd and quantile.
case_groups_of_feeds() {
    runs 0 "$shipped/chickwts.csv" --by feed
    diff - <(section Groups) <<END || failed "other groups"
Groups by feed
  column  feed        n  missing     mean  st.dev.    25 %  median    75 %
  weight  casein     12        0  323.583   64.434  277.25  342.00  370.75
          horsebean  10        0  160.200   38.626  137.00  151.50  176.25
          linseed    12        0  218.750   52.236  178.00  221.00  257.75
          meatmeal   11        0  276.909   64.901  249.50  263.00  320.00
          soybean    14        0  246.429   54.129  206.75  248.00  270.00
          sunflower  12        0  328.917   48.836  312.75  328.00  340.25
END
}
# Groups stand in the order of the numbers and of the dates; rows without one are left out, and told.
case_groups_of_numbers_and_dates() {
    printf 'x,g,d\n1,10,2024-03-01\n3,9,2023-12-24\n5,9,2024-03-01\n,9,2024-03-01\n8,NA,2023-12-24\n' >data.csv
    runs 0 data.csv --by g
    diff - <(section Groups) <<END || failed "other groups of numbers"
Groups by g
  column  g   n  missing   mean  st.dev.  25 %  median  75 %
  x       9   2        1  4.000    1.414  3.50    4.00  4.50
          10  1        0  1.000    -      1.00    1.00  1.00
  -: a mean and quartiles need one number in the group, a standard deviation two.
END
    grep -qxF '  Left out of the groups: 1 row without one.' out || failed "nothing on the row without a group"
    runs 0 data.csv --by d
    grep -qE '^  x +2023-12-24 +2 +0 +5.500 ' out || failed "another first group"
    grep -qE '^ +2024-03-01 +2 +1 +3.000 ' out || failed "another second group"
}
case_most_of_many_groups() {
    {
        echo x,g
        for k in {1..25}; do echo "$k,g$k"; done
        for k in {6..25}; do echo "$k,g$k"; done
    } >data.csv
    runs 0 data.csv --by g
    grep -qxF '  The 20 largest of 25 groups are shown.' out || failed "nothing on the other groups"
    [ "$(section Groups | grep -cE ' g[0-9]+ +2 ')" -eq 20 ] || failed "other groups than the largest"
}
case_no_groups() {
    printf 'x,g,h\n1,,a\n2,,b\n' >data.csv
    refuses data.csv "has no column feed" --by feed
    refuses data.csv "column g has no groups: all its cells are missing" --by g
    refuses data.csv "column x has the weights already" --by x --weights x
}
# A weight of whole numbers is a count: the same figures as of a file in which each row stands that often.
case_weights_that_are_counts() {
    printf 'y,x,z\n3,1,7\n3,1,7\n5,2,1\n4,3,2\n4,3,2\n4,3,2\n9,5,4\n' >plain.csv
    printf 'y,x,n,z\n3,1,2,7\n5,2,1,1\n99,99,0,99\n4,3,3,2\n9,5,1,4\n98,98,NA,98\n' >data.csv
    runs 0 plain.csv --y y
    for title in Shape Regression Correlations; do whole_section "$title" | grep -vE '^  +rows|over the'; done >expected
    runs 0 data.csv --y y --weights n
    for title in Shape Regression Correlations; do whole_section "$title" | grep -vE '^  +rows|over the'; done >found
    diff expected found || failed "other figures than of the rows written out"
    grep -qE '^  y +4 +0 +7 +4.571 +2.070 +32$' out || failed "another count, weight, mean, deviation or sum"
    grep -qxF '  Left out: 2 rows without a weight above 0.' out || failed "nothing on the rows left out"
}
# By R 4.2.2: summary(lm(y ~ x, weights = w)), and cov.wt(..., cor = TRUE).
case_weights_that_are_shares() {
    printf 'y,x,w\n3,1,.5\n5,2,1.5\n4,3,1\n9,4,2.25\n8,5,.75\n12,6,1\n11,7,3\n' >data.csv
    runs 0 data.csv --y y --weights w
    grep -qE '^  y +7 +0 +10 +8\.425 +3\.157 +84\.250$' out || failed "another mean, deviation or sum"
    grep -qE '^  x +0\.911$' out || failed "another correlation"
    grep -qE '^  \(intercept\) +2\.2130 +1\.3647 +1\.622$' out || failed "another intercept"
    grep -qE '^  x +1\.3431 +0\.27119 +4\.953 ' out || failed "another slope"
    grep -qE '^  R-squared, adjusted +0\.7968$' out || failed "another R-squared"
    grep -qE '^  degrees of freedom +5$' out || failed "other degrees of freedom"
    grep -q 'Weights in w: not all are whole numbers' out || failed "nothing on what the weights are"
    # Weights ten times as large are the same shares.
    printf 'y,x,w\n3,1,5\n5,2,15\n4,3,10\n9,4,22.5\n8,5,7.5\n12,6,10\n11,7,30\n' >tenfold.csv
    runs 0 tenfold.csv --y y --weights w
    grep -qE '^  x +1\.3431 +0\.27119 +4\.953 ' out || failed "another slope with tenfold weights"
}
case_weights_that_are_none() {
    printf 'x,t,d,neg,zero,w\n1,a,2024-01-01,1,0,1\n2,b,2024-01-02,-2.5,0,1\n3,c,2024-01-03,1,NA,1\n' >data.csv
    refuses data.csv "has no column weight" --weights weight
    refuses data.csv "column t cannot be weights: not all its cells are numbers" --weights t
    refuses data.csv "column d cannot be weights: not all its cells are numbers" --weights d
    refuses data.csv "column neg cannot be weights: that of row 2 is negative, -2.5" --weights neg
    refuses data.csv "column zero cannot be weights: none of them is above 0" --weights zero
    refuses data.csv "column w has the weights already" --weights w --y w
    refuses data.csv "column d holds dates, not numbers" --y d
}
# A text counts with its weight; one that only rows without weight have is no category.
case_weighted_categories() {
    printf 't,w\na,1\nb,2\nc,0\nb,0.5\na,0.5\n' >data.csv
    runs 0 data.csv --weights w
    diff - <(section Categories) <<END || failed "another inventory"
Categories, with their share of the texts that are not missing
  column  category  weight  % of weight
  t       b          2.500         62.5
          a          1.500         37.5
END
}
case_figures_beyond_all_numbers_are_told() {
    printf 'x,y\n1e308,1\n1.5e308,2\n-1e308,4\n1.2e308,3\n' >data.csv
    runs 0 data.csv --y y
    ! grep -qiE '(^|[ -])(nan|inf)( |$)' out || failed "a figure that is no number: $(cat out)"
    grep -q '^  overflow: ' out || failed "no reason for what is too large"
}
case_sixty_columns() {
    {
        seq -s, 1 60
        seq -s, 1001 1060
    } >data.csv
    runs 0 data.csv
    grep -q '^data.csv, 1 row, 60 columns of numbers$' out || failed "another count of columns"
    grep -q '^  60  .* 1060' out || failed "no line on the last column"
    ! grep -qE '^.{101}' out || failed "more than 100 columns"
    [ "$(grep -cE '^  column +1 +2 ' out)" -eq 1 ] || failed "no table of correlations"
    grep -qE '^  column .* 58 +59$' out || failed "the table of correlations does not go on below"
}
case_nothing_but_missing_cells() {
    plain 'a,b\n,1\nNA,2\n'
    runs 0 plain/data.csv
    grep -qE '^  a +0 +2 ' out || failed "no line on the empty column"
}
# Numbers that differ by less than a rounding error, and ones that are too small to be divided into intervals.
case_ranges_without_intervals() {
    local numbers
    for numbers in '1e300 1e300 1e300' '5e-324 1e-323 0' '10000000000000000 10000000000000002 10000000000000004' '7 7 7'; do
        printf 'x\n%s\n%s\n%s\n' $numbers >data.csv
        runs 0 data.csv --html page.html
        grep -qE '<rect class="bar".*: 3 rows<' page.html || failed "another histogram of $numbers"
        ! grep -qiE '"-?(nan|inf)' page.html || failed "a shape without a place for $numbers"
    done
}
