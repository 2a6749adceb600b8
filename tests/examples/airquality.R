# Rscript airquality.R FILE: the figures of airquality.report, from R alone. Standard errors, and the sample's skewness
# and kurtosis, by their formulas (Joanes and Gill 1998, G1 and G2).
x <- read.csv(commandArgs(TRUE)[1])
figures <- sapply(x, function(v) {
    row <- function(at) which(!is.na(v) & v == at)[1]
    k <- v[!is.na(v)]
    n <- length(k)
    m <- function(power) mean((k - mean(k))^power)
    seSkewness <- sqrt(6 * n * (n - 1) / ((n - 2) * (n + 1) * (n + 3)))
    c(n = n, missing = sum(is.na(v)), mean = mean(k), sd = sd(k), sum = sum(k),
      min = min(k), rowOfMin = row(min(k)), quantile(k, c(0.25, 0.5, 0.75)), max = max(k), rowOfMax = row(max(k)),
      skewness = m(3) / m(2)^1.5 * sqrt(n * (n - 1)) / (n - 2), seSkewness = seSkewness,
      kurtosis = (n - 1) / ((n - 2) * (n - 3)) * ((n + 1) * (m(4) / m(2)^2 - 3) + 6),
      seKurtosis = 2 * seSkewness * sqrt((n^2 - 1) / ((n - 3) * (n + 5))),
      gmean = exp(mean(log(k))), gsd = exp(sd(log(k))), hmean = 1 / mean(1 / k))
})
print(round(t(figures)[, 1:5], 3))
print(round(t(figures)[, 6:12], 3))
print(round(t(figures)[, 13:19], 3))
print(round(cor(x, use = "pairwise.complete.obs"), 3))
print(round(cor(na.omit(x), method = "spearman"), 3))
print(crossprod(!is.na(x)))
print(round(100 * colMeans(is.na(x)), 1))
print(lapply(split(seq_len(nrow(x)), rowSums(is.na(x))), function(rows) c(length(rows), head(rows, 12))))
p <- prcomp(na.omit(x), scale. = TRUE) # The signs of components are arbitrary.
print(rbind(p$sdev^2, 100 * p$sdev^2 / ncol(x)))
print(round(sweep(p$rotation, 2, p$sdev, "*"), 3))
