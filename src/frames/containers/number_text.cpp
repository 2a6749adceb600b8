#include "frames/containers/number_text.h"

#include <array>
#include <cstdio>

void dprint(double value, const char* label)
{
    std::array<char, 1000> line{};
    std::snprintf(line.data(), line.size(), "%s %36.16f\n", label, value);
    OutputDebugStringA(line.data());
}
