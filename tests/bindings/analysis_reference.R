# Rscript tests/bindings/analysis_reference.R > tests/bindings/analysis_reference.txt: what the example analysis shows, by
# R's own functions (R 4.2.2: weighted.mean, cov.wt, eigen, lm).
numbers <- c("Ozone", "Solar.R", "Wind", "Temp")
data <- read.csv(file.path("examples", "data", "airquality.csv"))
columns <- data[numbers]
show <- function(name, value) cat(sprintf("%s\t%.17g\n", name, value), sep = "")
show_pairs <- function(what, value) {
    for (pair in combn(numbers, 2, simplify = FALSE)) {
        show(sprintf("%s of %s and %s", what, pair[1], pair[2]), value(pair))
    }
}
# Covariances with the sum of the weights as divisor, over the rows that miss none of the columns.
weighted <- function(names) {
    rows <- complete.cases(columns[names])
    cov.wt(columns[rows, names, drop = FALSE], weights[rows] / sum(weights[rows]), cor = TRUE, method = "ML")
}

show("rows", nrow(data))
show(paste("missing", numbers), colSums(is.na(columns)))
months <- table(data$Month)
show(paste("rows of Month", names(months)), as.vector(months))
weights <- 1 / as.vector(months[as.character(data$Month)])
for (name in numbers) {
    show(paste("mean of", name), weighted.mean(columns[[name]], weights, na.rm = TRUE))
    show(paste("deviation of", name), sqrt(weighted(name)$cov[1, 1]))
}
show_pairs("covariance", function(pair) weighted(pair)$cov[1, 2])
show("complete rows", sum(complete.cases(columns)))
correlations <- weighted(numbers)$cor
show_pairs("correlation", function(pair) correlations[pair[1], pair[2]])
show(paste("eigenvalue", 1:4), eigen(correlations)$values)
fit <- summary(lm(Ozone ~ Solar.R + Wind + Temp, columns, weights = weights))$coefficients
terms <- c("Solar.R", "Wind", "Temp", "(Intercept)")
for (term in terms) {
    name <- if (term == "(Intercept)") "constant" else term
    show(paste("coefficient of", name), fit[term, "Estimate"])
    show(paste("standard error of", name), fit[term, "Std. Error"])
}
