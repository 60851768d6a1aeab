// Windows: a DLL calls what it needs of others through a table of addresses, in which a test
// may put its own.

#ifndef KYDATASTRUCTURE_TESTS_SUPPORT_IMPORT_TABLE_H_
#define KYDATASTRUCTURE_TESTS_SUPPORT_IMPORT_TABLE_H_

#include <cstring>

#include "support/windows_api.h"

// From now on the loaded `module` calls `replacement` for the function of that name. False if
// it calls none of that name.
template <class Function>
bool redirectImport(const char* module, const char* name, Function* replacement) {
  auto* const begin = reinterpret_cast<char*>(GetModuleHandleA(module));
  if (!begin) return false;
  const auto at = [begin](ULONGLONG offset) { return static_cast<void*>(begin + offset); };
  const auto* const dos = static_cast<const IMAGE_DOS_HEADER*>(at(0));
  const auto* const headers =
      static_cast<const IMAGE_NT_HEADERS*>(at(static_cast<ULONGLONG>(dos->e_lfanew)));
  const auto& directory = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
  const auto* from = static_cast<const IMAGE_IMPORT_DESCRIPTOR*>(at(directory.VirtualAddress));
  for (; from->Name != 0; ++from) {
    const auto* names = static_cast<const IMAGE_THUNK_DATA*>(at(from->OriginalFirstThunk));
    auto* address = static_cast<IMAGE_THUNK_DATA*>(at(from->FirstThunk));
    for (; names->u1.AddressOfData != 0; ++names, ++address) {
      if (IMAGE_SNAP_BY_ORDINAL(names->u1.Ordinal)) continue;
      const auto* const function =
          static_cast<const IMAGE_IMPORT_BY_NAME*>(at(names->u1.AddressOfData));
      if (std::strcmp(reinterpret_cast<const char*>(function->Name), name) != 0) continue;
      DWORD protection = 0;
      if (!VirtualProtect(address, sizeof *address, PAGE_READWRITE, &protection)) return false;
      address->u1.Function = reinterpret_cast<ULONGLONG>(replacement);
      return VirtualProtect(address, sizeof *address, protection, &protection) != 0;
    }
  }
  return false;
}

#endif  // KYDATASTRUCTURE_TESTS_SUPPORT_IMPORT_TABLE_H_
