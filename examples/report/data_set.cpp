#include "data_set.h"

#include <algorithm>

namespace report
{

text_block::~text_block()
{
    std::for_each(texts_.begin(), texts_.end(), SysFreeString);
}

} // namespace report
