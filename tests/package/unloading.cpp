// A host that loads the library named on its command line, calls what forks a team, unloads it, and does all
// that again: the waiting threads must find the code that they wait in. Exit code 0 when every result is
// right.

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

using product = int (*)(double* a, int n, int p, double* b, int q, double* c);

/** A library that is loaded while it lives. */
class loaded_library
{
public:
#ifdef _WIN32
    explicit loaded_library(const char* path) : handle_(LoadLibraryA(path)) {}
    ~loaded_library()
    {
        FreeLibrary(handle_);
    }
    [[nodiscard]] product find(const char* name) const
    {
        return reinterpret_cast<product>(reinterpret_cast<void*>(GetProcAddress(handle_, name)));
    }
#else
    explicit loaded_library(const char* path) : handle_(dlopen(path, RTLD_NOW)) {}
    ~loaded_library()
    {
        dlclose(handle_);
    }
    [[nodiscard]] product find(const char* name) const
    {
        return reinterpret_cast<product>(dlsym(handle_, name));
    }
#endif
    loaded_library(const loaded_library&) = delete;
    loaded_library& operator=(const loaded_library&) = delete;
    [[nodiscard]] bool isLoaded() const
    {
        return handle_ != nullptr;
    }

private:
#ifdef _WIN32
    HMODULE handle_;
#else
    void* handle_;
#endif
};

bool multiplies(const char* path)
{
    const loaded_library library(path);
    if (!library.isLoaded()) {
        std::fprintf(stderr, "%s cannot be loaded\n", path);
        return false;
    }
    const product multiply = library.find("VB_M_ProductAB");
    double a[] = {1.0, 2.0, 3.0, 4.0};
    double b[] = {5.0, 6.0, 7.0, 8.0};
    double c[4] = {};
    multiply(a, 2, 2, b, 2, c);
    return c[0] == 23.0 && c[1] == 34.0 && c[2] == 31.0 && c[3] == 46.0;
}

} // namespace

int main(int count, char** arguments)
{
    for (int round = 0; round < 3; ++round) {
        if (count != 2 || !multiplies(arguments[1])) {
            return 1;
        }
        // Long enough for the threads to leave their first, busy wait.
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    }
    return 0;
}
