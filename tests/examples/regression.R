# Rscript regression.R: what the regressions of the report's tests show, by R: mpg of mtcars, and Ozone of airquality.
show <- function(file, response) {
    data <- read.csv(file.path("examples", "data", file))
    data <- na.omit(data[sapply(data, is.numeric)])
    others <- data[names(data) != response]
    fit <- summary(lm(data[[response]] ~ ., others))
    tolerance <- c(NA, 1 / diag(solve(cor(others))))
    print(cbind(fit$coefficients[, 1:3], tolerance, VIF = 1 / tolerance), digits = 6)
    cat(sprintf("R-squared %.4f, adjusted %.4f, residual deviation %.5g, %d degrees of freedom\n\n", fit$r.squared,
                fit$adj.r.squared, fit$sigma, fit$df[2]))
}
show("mtcars.csv", "mpg")
show("airquality.csv", "Ozone")
