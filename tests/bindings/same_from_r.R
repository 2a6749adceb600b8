# same_from_r.R FILE: calls from R what same_from_r.py has called from Python; each result must have the same bits.

library(korvelmathtools)
numbers <- function(words) {
    words[words == "inf"] <- "Inf"
    words[words == "-inf"] <- "-Inf"
    as.numeric(sub("^-?nan$", "NaN", words))
}
# NA is the missing integer.
plain <- function(x) if (is.integer(x)) ifelse(is.na(x), -2147483648, x) else as.vector(x)
same_bits <- function(a, b) length(a) == length(b) && all(is.nan(a) & is.nan(b) | a == b & 1 / a == 1 / b, na.rm = TRUE) &&
    identical(is.nan(a), is.nan(b))

calls <- 0
wrong <- 0
compare <- function() {
    calls <<- calls + 1
    answer <- do.call(name, given)
    for (part in names(expected)) {
        found <- if (!is.list(answer)) answer
            else if (part == "-") answer$result
            else answer[[if (part == "result" && "result_" %in% names(answer)) "result_" else part]]
        words <- expected[[part]]
        equal <- if (is.character(found)) identical(as.vector(found), sub("^<>$", "", words)) else same_bits(plain(found), numbers(words))
        if (!equal) {
            cat("WRONG", name, part, "\n")
            wrong <<- wrong + 1
        }
    }
}

name <- ""
for (line in readLines(commandArgs(TRUE))) {
    words <- strsplit(line, " ", fixed = TRUE)[[1]]
    cells <- words[-(1:2)]
    if (words[1] %in% c("call", "end")) {
        if (name != "") compare()
        name <- words[2]
        given <- expected <- list()
    } else if (words[1] %in% c("result", "written")) expected[[words[2]]] <- cells
    else given[[words[2]]] <- switch(words[1], v = , D = numbers(cells), I = , S = as.integer(cells), cells)
}
cat(calls, "calls,", wrong, "with other bits\n")
if (wrong || calls < 800) stop("not the same")
