# r_test.R AUTOMATION_LIBRARY: the R package. Numbers beside R's own, texts, tables, records, and mistakes. Stops
# with what is wrong.

library(korvelmathtools)
wrong <- 0
same <- function(what, found, expected, tolerance = 0) {
    equal <- if (tolerance) isTRUE(all.equal(found, expected, tolerance = tolerance, check.attributes = FALSE))
        else identical(found, expected)
    if (equal) return(invisible())
    wrong <<- wrong + 1
    cat("WRONG", what, "\n")
    str(found)
    str(expected)
}
refused <- function(message, expression) {
    found <- tryCatch({
        expression
        "not refused"
    }, error = conditionMessage)
    same("message", found, message)
}

# Every function is there, has a help page, and the right number of arguments.
functions <- korvelmathtools:::.functions
same("functions", length(functions) > 600, TRUE)
same("sorted as C sorts", names(functions), sort(names(functions), method = "radix"))
aliases <- unlist(lapply(tools::Rd_db("korvelmathtools"), function(page)
    sapply(Filter(function(part) identical(attr(part, "Rd_tag"), "\\alias"), page), as.character)), use.names = FALSE)
others <- c("MISSING", "from_na", "to_na", "korvelmathtools", "korvelmathtools-package")
same("help", sort(aliases, method = "radix"), sort(c(names(functions), others), method = "radix"))
same("exports", sort(getNamespaceExports("korvelmathtools"), method = "radix"),
     sort(c(names(functions), others[1:3]), method = "radix"))
for (name in names(functions))
    same(name, length(formals(getExportedValue("korvelmathtools", name))), length(functions[[name]][[2]]))
version <- as.integer(unlist(packageVersion("korvelmathtools")))
same("version", KORVEL_Version(), as.integer(sum(version * c(10000, 100, 1))))

# Numbers beside R's own.
set.seed(1)
x <- matrix(rnorm(60), 20, 3)
ones <- rep(1, 20)
same("sum", VB_V_Sum(c(1, 2, 4), w = c(1, 1, 0.5)), 5)
same("sum of integers", VB_V_Sum(1:3, 2, NULL, c(1, 1)), 3)
same("sum with flags", VB_V_Sum(c(1, 2, 4), iMissing = c(FALSE, TRUE, FALSE), w = c(1, 1, 1)), 5)
moments <- VB_V_MeanStdev(x[, 1], iMissing = logical(20), w = ones, bUnbiased = TRUE, bFreq = TRUE)
same("mean", moments$mean, mean(x[, 1]), 1e-14)
same("deviation", moments$sd, sd(x[, 1]), 1e-14)
same("correlations", VB_M_CovCorr(x, bCorr = TRUE, w = ones, bUnbiased = TRUE, bFreq = TRUE, bUndefinedIsZero = FALSE)$out,
     cor(x), 1e-13)
same("product", VB_M_ProductAB(a = x, b = diag(3))$c, x)
same("column sums", VB_M_SumByCols(x)$out, colSums(x), 1e-14)
fit <- RunOLSBasic2(x = x[, 1:2], y = x[, 3], weights = ones, degree = 1L, interactions = FALSE, noConstant = FALSE,
                    tolerance = 1e-8)
model <- summary(lm(x[, 3] ~ x[, 1] + x[, 2]))$coefficients[c(2, 3, 1), ]
same("coefficients", fit$coefficients, model[, 1], 1e-12)
same("standard errors", fit$standardErrors, model[, 2], 1e-12)
same("fitted", fit$fitted, fitted(lm(x[, 3] ~ x[, 1] + x[, 2])), 1e-12)

# Nothing is changed in place.
table <- matrix(c(3, 1, 2, 30, 10, 20), 3)
sorted <- VB_SortQDbl(table, key = table[, 1], from = 1, to = 3, auxCols = -1, bDesc = FALSE, bSortKey = TRUE)
same("sorted", sorted$x, table[order(table[, 1]), ])
same("key", sorted$key, c(1, 2, 3))
same("as it was", table, matrix(c(3, 1, 2, 30, 10, 20), 3))

# What is only read is not copied.
copies <- function(expression) sum(startsWith(capture.output(expression), "tracemem"))
invisible(tracemem(table))
invisible(tracemem(ones))
same("copies of what is read", copies(VB_M_SumByCols(table)), 0L)
same("copies of weights", copies(VB_V_Sum(x[, 1], w = ones)), 0L)
same("copies of what is written", copies(VB_M_Center2(table)), 1L)
untracemem(table)
untracemem(ones)

# Missing cells.
cells <- from_na(matrix(c(1, NA, NaN, 4), 2))
same("missing", cells, matrix(c(1, MISSING, MISSING, 4), 2))
same("is missing", VB_IsMissingValueDbl(cells[2, 1]), -1L)
same("back", to_na(cells), matrix(c(1, NA, NA, 4), 2))
same("texts", to_na(from_na(c("a", NA))), c("a", NA))
same("integers", VB_V_Max2Lng(c(1L, NA, 3L)), 3)

# An argument whose name is that of the function's own result.
cosines <- ComputeCosines(rbind(c(3, 4), c(0, 2)), result = matrix(0, 2, 2))
same("own result", cosines$result, 0L)
same("argument named result", cosines$result_, rbind(c(0.36, 0.64), c(0, 1)), 1e-15)

# Texts.
words <- c("pear", "apple", "\u03b1\U0001f34e", "", "\u00e9")
same("sorted texts", VB_SortQVectorStr(words, from = 1, to = 5, bDesc = FALSE)$x,
     c("", "apple", "pear", "\u00e9", "\u03b1\U0001f34e"))
same("constant", VB_V_IsConstantStr(c("a", "a"), bSkipMissing = FALSE), -1L)
same("ranges", SimplifyRange("'S'!$C:$C,'S'!$B:$B"), "'S'!$B:$C")
where <- Cpp_SortQVector2Str(c("b", "a"), from = 1, to = 2, bDesc = FALSE)
same("positions", where$index, c(2L, 1L))

# Tables of columns, and host arrays.
data <- data.frame(x = c(1, 2, 3, 4), y = c(2, NA, 6, 8))
filled <- Cpp_M_ReplaceMissingByVal_ST(from_na(as.matrix(data)), 4, 2, 5)$x
same("record", filled, list(x = c(1, 2, 3, 4), y = c(2, 5, 6, 8)))
room <- list(x = numeric(2), y = numeric(2))
same("correlation", Cpp_M_CovCorr_ST(filled, 4, 2, room, TRUE, w = rep(1, 4), bUnbiased = TRUE, bFreq = TRUE,
                                     bUndefinedIsZero = FALSE)$out$x[2], cor(filled$x, filled$y), 1e-14)
same("texts of a record", Cpp_M_ReplaceMissingByStr_ST(list(t = c("a", "", "c")), 3, 1, "b")$x, list(t = c("a", "b", "c")))
solved <- Cpp_V_Gauss_ST(list(c(2, 1), c(1, 3)), 2, list(c(1, 2)))
same("column", solved$b[[1]], solve(matrix(c(2, 1, 1, 3), 2), c(1, 2)), 1e-14)
extremes <- VB_M_MinMaxSPV(x, 20, 3, flag = -1)
same("chunks", extremes[2:3], list(mins = apply(x, 2, min), maxs = apply(x, 2, max)))
sample <- VB_M_SampleUserDefinedSPV(list(c("a", "b")), 2, 1, list(rep("", 3)), c(1, 2.9))
same("text chunks", sample$sample, list(c("a", "b", "b")))
same("host array", Cpp_V_Sum2Dbl_ST(c(1.5, 2, 4), 3), 7.5)
same("flags", Cpp_V_NbTrue_ST(c(TRUE, FALSE, TRUE), 3), 2L)
same("integers", Cpp_SortQLng_ST(cbind(c(30L, 10L, 20L), 3:1), from = 1, to = 3, key = c(3L, 1L, 2L), auxCols = -1,
                                 bDesc = FALSE, bSortKey = TRUE, rows = 3, cols = 2)$x, cbind(c(10L, 20L, 30L), c(2L, 1L, 3L)))
same("sorted host array", VB_SortQVectorDbl(c(2, 1), 0, from = 1, to = 2, bDesc = FALSE)$sa, c(1, 2))

# Mistakes.
refused("VB_V_Sum: x must be numbers, not character", VB_V_Sum("a", w = 1))
refused("VB_V_Sum: x must be numbers, not factor", VB_V_Sum(factor("a"), w = 1))
refused("VB_V_Sum: x has 2 cells, not 3", VB_V_Sum(c(1, 2), 3, w = c(1, 2, 3)))
refused("VB_V_Sum: x cannot have -1 by 1 cells", VB_V_Sum(1, -1, w = 1))
refused("VB_V_Sum: w is not given", VB_V_Sum(1))
refused("VB_V_Sum: n must be an integer, not character", VB_V_Sum(1, "1"))
refused("VB_V_Sum: n is 1.5, and no integer from -2147483647 to 2147483647", VB_V_Sum(1, 1.5))
refused("VB_V_Sum: x has 3 dimensions; vectors and tables have one or two", VB_V_Sum(array(1, c(1, 1, 1)), w = 1))
refused("VB_V_Sum: iMissing has NA", VB_V_Sum(1, iMissing = NA, w = 1))
refused("VB_M_ProductAB: b has 2 by 2 cells, not 3 by 2", VB_M_ProductAB(a = matrix(0, 2, 3), b = diag(2)))
refused("VB_V_Max2Lng: x has numbers that are no integers of 32 bits", VB_V_Max2Lng(2^31))
refused("VB_V_IsConstantStr: x has NA: see from_na", VB_V_IsConstantStr(c("a", NA), bSkipMissing = FALSE))
refused("VB_V_SetToValueStr: value must be one text", VB_V_SetToValueStr("a", value = 1))
refused("Cpp_M_IsPositive_ST: x must be a table: a matrix, a data frame or a list of columns, not numeric",
        Cpp_M_IsPositive_ST(1, 1, 1, NULL, FALSE))
refused("Cpp_M_InfoQuali3_ST: info is a record that R cannot make", Cpp_M_InfoQuali3_ST(list("a"), 1, list()))
refused("ExtractBSTR: R cannot hold the result", ExtractBSTR("a"))
refused("VB_M_DuplicateStrSPV: memory is short, or a count is below 0", VB_M_DuplicateStrSPV(list("a"), -1, 1, "b", 1, 1, 1, 1))
refused("from_na: cells must be numbers or texts, not list", from_na(list()))

# No text is left behind: of the library's counters the first says how many were made, the second how many freed.
invisible(dyn.load(commandArgs(TRUE)))
counters <- readBin(.C("KorvelReadAutomationCounters", raw(56), PACKAGE = "libKORVELAutomation")[[1]], "integer", 7, size = 8)
same("texts were made", counters[1] > 20, TRUE)
same("texts left behind", counters[1] - counters[2], 0L)

if (wrong) stop(wrong, " wrong")
cat("all as it should be\n")
