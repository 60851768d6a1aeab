/* Loads a shared library, calls one function of it and unloads it, once, since a
 * library that was loaded before leaves something behind for the next time.
 *
 *   load_once <library>
 *
 * Prints the CPU time of the three in nanoseconds, how many libraries came in, and
 * what the function answered. It is a C program, so that the standard library of C++
 * comes and goes with the library. */

#define _GNU_SOURCE
#include <dlfcn.h>
#include <link.h>
#include <stdio.h>
#include <string.h>
#include <time.h>

static int countOne(struct dl_phdr_info* info, size_t size, void* count) {
  (void)info;
  (void)size;
  ++*(int*)count;
  return 0;
}

static int loadedLibraries(void) {
  int count = 0;
  dl_iterate_phdr(countOne, &count);
  return count;
}

static long long now(void) {
  struct timespec time;
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
  return (long long)time.tv_sec * 1000000000 + time.tv_nsec;
}

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  const int before = loadedLibraries();
  long long spent = now();

  void* const library = dlopen(argv[1], RTLD_NOW);
  if (!library) {
    fprintf(stderr, "%s\n", dlerror());
    return 1;
  }
  const char* (*function)(int) = NULL;
  *(void**)&function = dlsym(library, "getResourceRateStr");
  if (!function) {
    fprintf(stderr, "%s\n", dlerror());
    return 1;
  }
  char answer[32] = "";
  strncpy(answer, function(4), sizeof(answer) - 1);

  spent = now() - spent;
  const int loaded = loadedLibraries() - before;
  const long long middle = now();
  dlclose(library);
  spent += now() - middle;

  if (dlopen(argv[1], RTLD_NOW | RTLD_NOLOAD)) {
    fprintf(stderr, "still loaded\n");
    return 1;
  }
  printf("%lld %d %s\n", spent, loaded, answer);
  return 0;
}
