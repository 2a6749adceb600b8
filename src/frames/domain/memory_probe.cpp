#include "frames/domain/memory_probe.h"

#include "domain/memory_probe.h"
#include "frames/frame.h"

using namespace korvel;

int Cpp_TestMemory(const int* rows1, const int* cols1, const int* rows2, const int* cols2, const int* rows3,
                   const int* cols3, const int* rows4, const int* cols4, const int* rows5, const int* cols5,
                   const int* rows6, const int* cols6, const int* rows7, const int* cols7, const int* rows8,
                   const int* cols8, const int* rows9, const int* cols9, const int* rows10, const int* cols10,
                   const int* rows11, const int* cols11, const int* rows12, const int* cols12,
                   const int* rows13, const int* cols13, const int* rows14, const int* cols14,
                   const int* rows15, const int* cols15, const int* rows16, const int* cols16,
                   const int* rows17, const int* cols17, const int* rows18, const int* cols18,
                   const int* rows19, const int* cols19, const int* rows20, const int* cols20)
{
    return firstThatDoesNotFit(
        {{{*rows1, *cols1},   {*rows2, *cols2},   {*rows3, *cols3},   {*rows4, *cols4},
          {*rows5, *cols5},   {*rows6, *cols6},   {*rows7, *cols7},   {*rows8, *cols8},
          {*rows9, *cols9},   {*rows10, *cols10}, {*rows11, *cols11}, {*rows12, *cols12},
          {*rows13, *cols13}, {*rows14, *cols14}, {*rows15, *cols15}, {*rows16, *cols16},
          {*rows17, *cols17}, {*rows18, *cols18}, {*rows19, *cols19}, {*rows20, *cols20}}});
}

int Cpp_GetStatusMemory(int amount)
{
    return GetStatusMemory(amount) ? -1 : 0;
}
