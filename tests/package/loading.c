/* A program that loads the DLL by its name, with nothing beside it but what Windows has, and prints a sum and
   the version that the file's properties show. */
#include <stdio.h>
#include <windows.h>

typedef double (*sum_function)(const double* x, int n, const short int* iMissing, const double* w);

int main(void)
{
    const double values[] = {1.0, 2.0, 4.0, 8.0};
    const double weights[] = {1.0, 0.5, 2.0, 1.0};
    const HMODULE library = LoadLibraryW(L"KORVELMathTools.dll");
    if (library == NULL) {
        printf("not loaded: %lu\n", GetLastError());
        return 1;
    }
    FARPROC found = GetProcAddress(library, "VB_V_Sum");
    sum_function sum;
    memcpy(&sum, &found, sizeof sum);
    printf("%g\n", sum(values, 4, NULL, weights));

    unsigned char block[4096];
    char* version = NULL;
    UINT length = 0;
    if (!GetFileVersionInfoA("KORVELMathTools.dll", 0, sizeof block, block) ||
        !VerQueryValueA(block, "\\StringFileInfo\\040904B0\\ProductVersion", (void**)&version, &length)) {
        printf("no version: %lu\n", GetLastError());
        return 1;
    }
    printf("%s\n", version);
    return 0;
}
