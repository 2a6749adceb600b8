# Calls of the flat functions: what the arguments are turned into, and what comes back.

# A parameter as declarations.R has it: a letter for its type, whether it is written and whether only that, whether it may
# be absent, what a count of 0 stands for, of what a host array is, and the rooms that it takes.
.p <- function(name, kind, written, made, nullable, least, element, ...)
    list(name = name, kind = kind, written = written, made = made, nullable = nullable, least = least, element = element,
         rooms = list(...))

.wanted <- c(D = "numbers", I = "integers", S = "flags (logical, or -1 and 0)", T = "texts")

.utf16 <- function(texts) iconv(enc2utf8(as.vector(texts)), "UTF-8", "UTF-16LE", toRaw = TRUE)
.utf8 <- function(raws) if (length(raws)) iconv(raws, "UTF-16LE", "UTF-8") else character()

.whole <- function(x, least, most)
    is.numeric(x) && all(is.na(x) & !is.nan(x) | !is.nan(x) & x == trunc(x) & x >= least & x <= most)

# The cells of an argument in the type that the library takes, not copied when they have it; `fail` tells what is wrong.
.cells <- function(kind, x, fail) {
    wrong <- function() fail("must be ", .wanted[[kind]], ", not ", class(x)[1])
    if (length(dim(x)) > 2) fail("has ", length(dim(x)), " dimensions; vectors and tables have one or two")
    if (is.object(x)) wrong()
    switch(kind,
        D = if (!is.double(x)) {
            if (!is.integer(x) && !(is.logical(x) && all(is.na(x)))) wrong()
            storage.mode(x) <- "double"
        },
        I = {
            if (!is.numeric(x)) wrong()
            if (!.whole(x, -2147483647, 2147483647)) fail("has numbers that are no integers of 32 bits")
            if (!is.integer(x)) storage.mode(x) <- "integer"
        },
        S = {
            if (anyNA(x)) fail("has NA")
            if (is.logical(x)) x[] <- -x
            else if (!.whole(x, -32768, 32767)) wrong()
            storage.mode(x) <- "integer"
        },
        T = {
            if (!is.character(x)) wrong()
            if (anyNA(x)) fail("has NA: see from_na")
        })
    x
}

# One value.
.value <- function(kind, x, fail) {
    if (length(x) != 1 || is.object(x)) fail("must be one value")
    if (kind == "d") {
        if (!is.numeric(x)) fail("must be a number, not ", class(x)[1])
        return(as.double(x))
    }
    if (is.logical(x) && !is.na(x)) return(-as.integer(x))
    if (!is.numeric(x)) fail("must be an integer, not ", class(x)[1])
    limit <- if (kind == "i") 2147483647 else 32767
    if (is.na(x) || !.whole(x, -limit - (kind == "s"), limit)) fail("is ", x, ", and no integer from ", -limit, " to ", limit)
    as.integer(x)
}

# A list of columns, all of numbers or all of texts: of a matrix, a data frame, a list of vectors.
.columns <- function(x, fail) {
    if (is.matrix(x)) x <- stats::setNames(lapply(seq_len(ncol(x)), function(j) x[, j]), colnames(x))
    if (!is.list(x)) fail("must be a table: a matrix, a data frame or a list of columns, not ", class(x)[1])
    texts <- length(x) > 0 && all(vapply(x, is.character, NA))
    lapply(as.list(x), function(column) .cells(if (texts) "T" else "D", as.vector(column), fail))
}

.host_array <- function(element, x, fail) {
    kind <- c(Double = "D", Long = "I", Boolean = "S", String = "T")[[element]]
    x <- .cells(kind, x, fail)
    if (kind == "S") x[] <- x != 0
    if (kind == "S") storage.mode(x) <- "logical"
    x
}

# Texts as the library takes them, wherever they stand.
.lowered <- function(kind, x) {
    if (is.null(x)) return(NULL)
    if (kind %in% c("H", "C", "M")) {
        lowered <- lapply(unname(x), function(column) if (is.character(column)) .utf16(column) else column)
        return(structure(lowered, labels = .utf16(if (is.null(names(x))) rep("", length(x)) else names(x))))
    }
    if (is.character(x) && kind != "l") structure(.utf16(x), dim = dim(x)) else x
}

# What came back, with the shape and the names of what went.
.raised <- function(like, x) {
    if (is.list(like)) {
        like[] <- Map(.raised, like, x)
        return(like)
    }
    if (!is.list(x)) return(x)
    like[] <- .utf8(x)
    like
}

# Functions of rooms: the larger of two counts or the largest of an array's numbers; the sum of those that are positive.
.room_functions <- list2env(list(
    max = function(...) if (length(c(...))) base::max(...) else 0,
    sum = function(cells) base::sum(trunc(cells[cells >= 1]))), parent = baseenv())

.call <- function(name, given) {
    result <- .functions[[name]][[1]]
    parameters <- .functions[[name]][[2]]
    if (result == "T") stop(name, ": R cannot hold the result", call. = FALSE)
    names(parameters) <- vapply(parameters, `[[`, "", "name")
    failing <- function(p) function(...) stop(name, ": ", p$name, " ", ..., call. = FALSE)
    values <- list()
    for (p in parameters) {
        x <- given[[p$name]]
        if (is.null(x) || p$kind %in% c("d", "i", "s")) next
        values[[p$name]] <- switch(p$kind,
            D = , I = , S = , T = .cells(p$kind, x, failing(p)),
            A = .host_array(p$element, x, failing(p)),
            H = , C = , M = .columns(x, failing(p)),
            x = failing(p)("is a record that R cannot make"),
            if (is.character(x) && length(x) == 1 && !is.na(x)) x else failing(p)("must be one text"))
    }
    counts <- .counts(parameters, given, values, failing)
    rooms <- .room_environment(parameters, counts, values)
    arguments <- lapply(parameters, function(p) {
        if (p$kind %in% c("d", "i", "s")) counts[[p$name]] else .fitting(p, values[[p$name]], rooms, failing(p))
    })
    written <- vapply(parameters, function(p) p$written, NA)
    answer <- .Call(.korvel_call, name, unname(Map(.lowered, vapply(parameters, `[[`, "", "kind"), arguments)), unname(written))
    first <- if (result == "t") .utf8(list(answer[[1]])) else answer[[1]]
    written <- which(written & !vapply(arguments, is.null, NA))
    if (!length(written)) return(if (result == "v") invisible(NULL) else first)
    back <- Map(.raised, arguments[written], answer[written + 1])
    if (result == "v") return(back)
    names(back)[names(back) == "result"] <- "result_"
    c(list(result = first), back)
}

# The numbers and counts; a count that is not given is the number of rows, columns or elements of an array.
.counts <- function(parameters, given, values, failing) {
    counts <- list()
    for (p in parameters) {
        if (!p$kind %in% c("d", "i", "s")) next
        x <- given[[p$name]]
        if (is.null(x) && p$kind == "i") x <- .shown(as.name(p$name), parameters, values)
        if (is.null(x)) failing(p)("is not given")
        counts[[p$name]] <- .value(p$kind, x, failing(p))
    }
    counts
}

.shown <- function(count, parameters, values) {
    for (p in parameters) {
        x <- values[[p$name]]
        if (is.null(x) || !length(p$rooms)) next
        room <- p$rooms[[1]]
        table <- length(dim(x)) == 2
        if (identical(room[[1]], count)) return(if (table && !identical(room[[2]], 1)) nrow(x) else length(x))
        if (identical(room[[2]], count)) return(if (table) ncol(x) else 1L)
    }
    NULL
}

# What the expressions of rooms are made of.
.room_environment <- function(parameters, counts, values) {
    known <- Filter(function(x) !is.list(x), values)
    for (p in parameters) {
        # A count that the function changes is an array of one cell.
        if (length(p$rooms) && identical(p$rooms[[1]], list(1, 1))) known[[p$name]] <- known[[p$name]][1]
        count <- counts[[p$name]]
        if (!is.null(count)) known[[p$name]] <- if (count == 0 && p$kind == "i") p$least else count
        if (p$kind == "M" && !is.null(values[[p$name]]))
            known[[paste0(p$name, ".nbrowsmax")]] <- max(0L, lengths(values[[p$name]]))
    }
    list(functions = list2env(known, parent = .room_functions), counts = counts)
}

# The argument, made when it is only written; it must have the cells that the counts ask for.
.fitting <- function(p, x, rooms, fail) {
    if (is.null(x) && p$nullable) return(NULL)
    if (is.null(x) && !(p$made && length(p$rooms))) fail("is not given")
    if (!length(p$rooms) || !p$kind %in% c("D", "I", "S", "T")) return(x)
    room <- p$rooms[[1]]
    for (other in p$rooms[-1]) if (identical(as.integer(rooms$counts[[other[[3]]]]), as.integer(other[[4]]))) room <- other
    rows <- eval(room[[1]], rooms$functions)
    columns <- eval(room[[2]], rooms$functions)
    if (min(rows, columns) < 0) fail("cannot have ", rows, " by ", columns, " cells")
    if (is.null(x)) {
        x <- vector(c(D = "double", I = "integer", S = "integer", T = "character")[[p$kind]], rows * columns)
        return(if (identical(p$rooms[[1]][[2]], 1)) x else matrix(x, rows, columns))
    }
    if (length(dim(x)) == 2 && columns != 1 && !all(dim(x) == c(rows, columns)))
        fail("has ", nrow(x), " by ", ncol(x), " cells, not ", rows, " by ", columns)
    if (length(x) < rows * columns) fail("has ", length(x), " cells, not ", rows * columns)
    x
}

# The function of R for a flat function.
.flat <- function(name) {
    arguments <- vapply(.functions[[name]][[2]], `[[`, "", "name")
    names(arguments) <- arguments
    made <- function() NULL
    formals(made) <- lapply(arguments, function(argument) NULL)
    body(made) <- bquote(.call(.(name), .(as.call(c(as.name("list"), lapply(arguments, as.name))))))
    environment(made) <- environment(.call)
    made
}
