# Rscript runif.R COUNT: seconds that R takes for COUNT uniform draws of its Mersenne Twister.
count <- as.numeric(commandArgs(trailingOnly = TRUE)[1])
set.seed(5489, kind = "Mersenne-Twister")
invisible(runif(count))
cat(system.time(runif(count), gcFirst = TRUE)[["elapsed"]], "\n")
