#!/usr/bin/env Rscript
# How ozone goes with the weather, each month counting alike: the analysis of analysis.c through the R package.
#
#     Rscript analysis.R [--exact] FILE
#
# FILE is a table like examples/data/airquality.csv. --exact prints hexadecimal numbers, to the bit.
library(korvelmathtools)

names_of_numbers <- c("Ozone", "Solar.R", "Wind", "Temp")
group <- "Month"

fail <- function(...) {
    message(...)
    quit(status = 1)
}

# The columns of numbers, NA where a cell is missing, and the texts of the groups.
read_table <- function(file) {
    wrong <- function(...) fail("analysis: ", file, ": ", ...)
    lines <- tryCatch(suppressWarnings(readLines(file)), error = function(problem) wrong("cannot be opened"))
    header <- if (length(lines)) strsplit(lines[1], ",")[[1]]
    for (name in c(names_of_numbers, group)) if (!name %in% header) wrong("no column ", name)
    if (length(lines) < 2) wrong("no rows")
    widths <- count.fields(textConnection(lines), sep = ",", quote = "", blank.lines.skip = FALSE)
    odd <- which(widths != widths[1])
    if (length(odd)) wrong("line ", odd[1], " has ", widths[odd[1]], " cells, not ", widths[1])
    cells <- read.csv(text = lines, colClasses = "character", na.strings = c("", "NA"), check.names = FALSE, quote = "")
    texts <- as.matrix(cells[names_of_numbers])
    numbers <- suppressWarnings(matrix(as.numeric(texts), nrow(texts)))
    strange <- which(!is.na(texts) & !is.finite(numbers), arr.ind = TRUE)
    if (nrow(strange)) wrong("line ", strange[1, 1] + 1, ": ", texts[strange[1, 1], strange[1, 2]], " is not a number")
    list(numbers = numbers, groups = from_na(cells[[group]]))
}

analyse <- function(table, groups, show) {
    rows <- nrow(table)
    show("rows", rows)
    show(paste("missing", names_of_numbers), VB_M_NbMissing(table)$counts)

    # The rows of each month share a weight of 1.
    info <- VB_M_InfoQuali(groups, weights = rep(1, rows), sort = TRUE)
    found <- seq_len(info$categoryCounts)
    days <- info$frequencies[1, found]
    show(paste("rows of", group, info$categories[1, found]), days)
    weights <- 1 / days[match(groups, info$categories[1, found])]

    # The divisor of the variances is the sum of the weights. A pair of columns is taken over the rows that have both.
    columns <- VB_M_MeanStDevVar(table, w = weights, bUnbiased = FALSE, bFreq = FALSE)
    show(c(rbind(paste("mean of", names_of_numbers), paste("deviation of", names_of_numbers))),
         rbind(columns$means, columns$sds))
    pairs <- combn(length(names_of_numbers), 2)
    show_pairs <- function(what, square)
        show(paste(what, "of", names_of_numbers[pairs[1, ]], "and", names_of_numbers[pairs[2, ]]), square[t(pairs)])
    pair_table <- function(table, weights, correlations)
        VB_M_CovCorr(table, w = weights, bCorr = correlations, bUnbiased = FALSE, bFreq = FALSE, bUndefinedIsZero = FALSE)$out
    show_pairs("covariance", pair_table(table, weights, FALSE))

    # What follows is over the complete rows.
    whole <- Cpp_M_GetMissingDbl(table)$iMissingOut == 0
    complete <- table[whole, , drop = FALSE]
    kept <- weights[whole]
    show("complete rows", nrow(complete))
    correlations <- pair_table(complete, kept, TRUE)
    eigen <- VB_M_Eigen(correlations, sortFlag = TRUE)
    if (eigen$result != 0) stop("no eigenvalues: too few complete rows, or a column is constant")
    show_pairs("correlation", correlations)
    show(paste("eigenvalue", seq_along(eigen$values)), eigen$values)

    # Ozone on the other columns; the constant is the last term. The weights add up to the number of rows, so that the errors
    # have its degrees of freedom.
    scaled <- kept * (length(kept) / VB_V_Sum2Dbl(kept))
    fit <- RunOLSBasic2(x = complete[, -1], y = complete[, 1], weights = scaled, degree = 1, interactions = FALSE,
                        noConstant = FALSE, tolerance = 1e-8)
    terms <- c(names_of_numbers[-1], "constant")
    show(c(rbind(paste("coefficient of", terms), paste("standard error of", terms))),
         rbind(fit$coefficients, fit$standardErrors))
}

main <- function(words) {
    options <- startsWith(words, "--")
    for (option in words[options]) if (option != "--exact") fail("analysis: no option ", option)
    file <- words[!options]
    if (length(file) != 1) fail("usage: Rscript analysis.R [--exact] FILE")
    data <- read_table(file)
    line <- if (any(options)) "%-32s %a\n" else "%-32s %12.6g\n"
    show <- function(name, value) cat(sprintf(line, name, as.double(value)), sep = "")
    tryCatch(analyse(from_na(data$numbers), data$groups, show),
             error = function(problem) fail("analysis: ", file, ": ", conditionMessage(problem)))
}

main(commandArgs(trailingOnly = TRUE))
