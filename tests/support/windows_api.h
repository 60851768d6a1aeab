// Windows' own functions, without the macros that clash with other names.

#ifndef KYDATASTRUCTURE_TESTS_SUPPORT_WINDOWS_API_H_
#define KYDATASTRUCTURE_TESTS_SUPPORT_WINDOWS_API_H_

#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>

#endif  // KYDATASTRUCTURE_TESTS_SUPPORT_WINDOWS_API_H_
