// The threads of a team wait in the library's own code for the next call, long after a call has returned. A
// host that unloads the library would take that code from under them, so the library stays until the process
// ends. Elsewhere the linker marks it so.

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
