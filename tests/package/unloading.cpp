// A host that, three times over, loads the library named on its command line, calls a routine that starts
// threads, and unloads the library. The waiting threads must still find their code. Exit code 0 if every
// result is right.

#include <chrono>
#include <cstdio>
#include <thread>

#ifdef _WIN32
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace
{

using product = int (*)(const double* a, int n, int p, const double* b, int q, double* c);

#ifdef _WIN32
using library = HMODULE;

library load(const char* path)
{
    return LoadLibraryA(path);
}

void unload(library loaded)
{
    FreeLibrary(loaded);
}

product find(library loaded, const char* name)
{
    return reinterpret_cast<product>(reinterpret_cast<void*>(GetProcAddress(loaded, name)));
}

bool isLoaded(const char* path)
{
    return GetModuleHandleA(path) != nullptr;
}
#else
using library = void*;

library load(const char* path)
{
    return dlopen(path, RTLD_NOW);
}

void unload(library loaded)
{
    dlclose(loaded);
}

product find(library loaded, const char* name)
{
    return reinterpret_cast<product>(dlsym(loaded, name));
}

bool isLoaded(const char* path)
{
    return dlopen(path, RTLD_NOW | RTLD_NOLOAD) != nullptr;
}
#endif

bool multiplies(const char* path)
{
    const library loaded = load(path);
    if (loaded == nullptr) {
        std::fprintf(stderr, "%s cannot be loaded\n", path);
        return false;
    }
    const product multiply = find(loaded, "VB_M_ProductAB");
    double a[] = {1.0, 2.0, 3.0, 4.0};
    double b[] = {5.0, 6.0, 7.0, 8.0};
    double c[4] = {};
    multiply(a, 2, 2, b, 2, c);
    unload(loaded);
    return c[0] == 23.0 && c[1] == 34.0 && c[2] == 31.0 && c[3] == 46.0;
}

} // namespace

int main(int count, char** arguments)
{
    for (int round = 0; round < 3; ++round) {
        if (count != 2 || !multiplies(arguments[1]) || !isLoaded(arguments[1])) {
            return 1;
        }
        // Long enough for the threads to leave their first, busy wait.
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    }
    return 0;
}
