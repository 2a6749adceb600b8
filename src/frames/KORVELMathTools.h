/**
 * @file
 * All flat functions of KORVELMathTools, for C and everything that can call C.
 */
#ifndef KORVELMATHTOOLS_H
#define KORVELMATHTOOLS_H

#include "frames/apply_order.h"
#include "frames/containers.h"
#include "frames/diagonal_scaling.h"
#include "frames/distinct.h"
#include "frames/element_wise.h"
#include "frames/permutations.h"
#include "frames/products.h"
#include "frames/products_triple.h"
#include "frames/products_vector.h"
#include "frames/quantiles.h"
#include "frames/random.h"
#include "frames/ranks.h"
#include "frames/records.h"
#include "frames/reductions.h"
#include "frames/reverse.h"
#include "frames/row_grouping.h"
#include "frames/sampling.h"
#include "frames/sort_table.h"
#include "frames/sort_vector.h"
#include "frames/survey_boxes.h"
#include "frames/table_blocks.h"
#include "frames/table_columns.h"
#include "frames/table_duplicate.h"
#include "frames/table_extract.h"
#include "frames/table_merge.h"
#include "frames/table_remove.h"
#include "frames/table_resize.h"
#include "frames/transpose.h"
#include "frames/vector_duplicate.h"
#include "frames/vector_extremes.h"
#include "frames/vector_frequencies.h"
#include "frames/vector_means.h"
#include "frames/vector_moments.h"
#include "frames/vector_products.h"
#include "frames/vector_sums.h"
#include "frames/vector_variance.h"

#endif
