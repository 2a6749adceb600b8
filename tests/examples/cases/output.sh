# shellcheck shell=bash
# Cases of the report program: how it is called, and what becomes of its output.

case_reports_stay_narrow() {
    runs 0 "$shipped"/*.csv "$here/mixed.csv"
    ! LC_ALL=C.UTF-8 grep -E '^.{101}' out || failed "more than 100 columns"
}
case_read_me_shows_the_report() {
    [[ $(<"$here/../../README.md") == *"$(<"$here/airquality.report")"* ]] || failed "README.md shows another report"
}
# misuses REASON ARGUMENT...: the program must tell that, and how it is called.
misuses() {
    runs 2 "${@:2}"
    [ ! -s out ] || failed "something on the output"
    [ "$(head -n 1 err)" = "report: $1" ] || failed "another reason: $(head -n 1 err)"
    grep -q '^usage: report FILE.csv\.\.\. ' err || failed "no usage"
}
case_misuse() {
    misuses "no file is named"
    misuses "no file is named" --y mpg
    misuses "--y needs a word behind it" "$shipped/mtcars.csv" --y
    misuses "there is no option --colour" "$shipped/mtcars.csv" --colour red
    misuses '--separator needs one character, or "tab"' "$shipped/mtcars.csv" --separator ,,
}
case_help() {
    local option
    runs 0 nowhere.csv --help
    [ ! -s err ] || failed "$(cat err)"
    for option in y weights by html separator missing help; do
        grep -q "^  --$option " out || failed "nothing on --$option"
    done
}
# What follows asks the system for failures that the emulated one does not have.
on_windows() { [[ "${report[*]}" == *.exe* ]]; }

# not_written WHAT REASON ARGUMENT...: the program must end with that one line.
not_written() {
    "${report[@]}" "${@:3}" >/dev/full 2>err
    local status=$?
    [ "$status" -eq 1 ] || failed "exit code $status, expected 1: $(cat err)"
    diff - <(tr -d '\r' <err) <<<"report: $1: cannot be written: $2" || failed "another message than expected"
}
case_full_disk() {
    ! on_windows || return 0
    not_written "the report" "No space left on device" "$shipped/mtcars.csv"
    not_written "the report" "No space left on device" --help
    runs 1 "$shipped/mtcars.csv" --html /dev/full
    diff - err <<<"report: /dev/full: cannot be written: No space left on device" || failed "another message for a page"
    [ -c /dev/full ] || failed "the device was replaced"
}
# The page is larger than a file may become here.
case_page_that_does_not_fit() {
    ! on_windows || return 0
    echo before >page.html
    trap '' XFSZ
    (
        ulimit -f 2
        "${report[@]}" "$shipped/mtcars.csv" --html page.html >/dev/null 2>err
    )
    [ $? -eq 1 ] || failed "exit code $?"
    diff - err <<<"report: page.html: cannot be written: File too large" || failed "another message than expected"
    [ "$(cat page.html)" = before ] || failed "the file that was there is gone"
    [ "$(ls)" = $'err\npage.html' ] || failed "something is left: $(ls)"
}
case_page_in_a_place_that_is_none() {
    ! on_windows || return 0
    mkdir folder
    cp "$shipped/mtcars.csv" data.csv
    runs 1 data.csv --html nowhere/page.html
    diff - err <<<"report: nowhere/page.html: cannot be written: No such file or directory" || failed "another message"
    runs 1 data.csv --html folder
    diff - err <<<"report: folder: is a directory, not a file" || failed "another message for a folder"
    runs 1 data.csv --html data.csv
    diff - err <<<"report: data.csv: is the file of the data; name another one for the page" || failed "another message"
    cmp -s data.csv "$shipped/mtcars.csv" || failed "the data are gone"
}
case_no_page_on_a_part_of_the_files() {
    runs 1 "$shipped/mtcars.csv" nowhere.csv --html page.html
    [ ! -e page.html ] || failed "a page on one of two files"
    for option in --y --weights --by; do
        runs 1 "$shipped/mtcars.csv" "$option" speed --html page.html
        [ ! -s out ] || failed "a report without the column of $option"
        [ ! -e page.html ] || failed "a page without the column of $option"
    done
}
case_page_through_a_link() {
    ! on_windows || return 0
    echo before >target.html
    ln -s target.html page.html
    runs 0 "$shipped/mtcars.csv" --html page.html
    [ -L page.html ] || failed "the link is gone"
    grep -q '^<!DOCTYPE html>' target.html || failed "the page is elsewhere"
    [ "$(ls)" = $'err\nout\npage.html\nraw_err\nraw_out\ntarget.html' ] || failed "something is left: $(ls)"
}
case_progress_on_a_terminal_only() {
    ! on_windows || return 0
    runs 0 "$shipped/mtcars.csv"
    [ ! -s err ] || failed "something on the error stream: $(cat err)"
    script -qec "$(printf '%q ' "${report[@]}" "$shipped/mtcars.csv") >out" terminal >/dev/null || failed "exit code $?"
    grep -q 'mtcars.csv: reading' terminal || failed "no progress: $(cat -v terminal)"
    ! grep -q 'reading' out || failed "progress on the output"
}
# Each bar tells the weight in its interval: 0.5 + 1.5, 1, and 2.25 + 0.75.
case_bars_of_weights() {
    printf 'x,w,g\n1,0.5,a\n1,1.5,b\n2,1,b\n3,2.25,a\n3,0.75,b\n' >data.csv
    runs 0 data.csv --weights w --by g --html page.html
    for bar in '0.5 to 1.5: 2 of' '1.5 to 2.5: 1 of' '2.5 to 3.5: 3 of'; do
        grep -q "<rect class=\"bar\".*<title>$bar weight</title>" page.html || failed "no bar $bar weight"
    done
    grep -q '<title>Box plots of x by g</title><desc>a: quartiles ' page.html || failed "no box plots of the groups"
}
