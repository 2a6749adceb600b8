# Missing cells. In the library they have values of their own; in R they are NA. A missing integer is NA in both.

MISSING <- -1.79769313486231e308

# A copy in which each NA, and each NaN, is a missing number, or each NA a missing text.
from_na <- function(cells) {
    if (is.character(cells)) {
        cells[is.na(cells)] <- ""
    } else if (is.double(cells) || is.logical(cells)) {
        storage.mode(cells) <- "double"
        cells[is.na(cells)] <- MISSING
    } else if (!is.integer(cells)) {
        stop("from_na: cells must be numbers or texts, not ", class(cells)[1], call. = FALSE)
    }
    cells
}

# A copy in which each missing number, or each missing text, is NA.
to_na <- function(cells) {
    if (is.character(cells)) {
        cells[cells == ""] <- NA
    } else if (is.double(cells)) {
        cells[!is.na(cells) & cells <= MISSING] <- NA
    } else if (!is.integer(cells)) {
        stop("to_na: cells must be numbers or texts, not ", class(cells)[1], call. = FALSE)
    }
    cells
}
