// After a call has returned, the threads of its team wait for the next call in the library's own code. They
// would crash if a host unloaded the library, so it stays loaded until the process ends. On other systems a
// linker flag does the same.

#include <windows.h>

BOOL WINAPI DllMain(HINSTANCE library, DWORD reason, LPVOID)
{
    if (reason == DLL_PROCESS_ATTACH) {
        HMODULE pinned = nullptr;
        GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_PIN | GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS,
                           reinterpret_cast<LPCWSTR>(library), &pinned);
    }
    return TRUE;
}
