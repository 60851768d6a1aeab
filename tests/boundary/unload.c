/* Loads the library, reads texts with it and unloads it, a hundred times, and proves by
 * the maps of the process (Windows: its modules) that it is gone each time and by the heap
 * that nothing stays. A single unique symbol of the standard library would keep it: the
 * export list hides them.
 *
 *   unload [--forgetful] LIBRARY TEXT...
 *
 * With --forgetful it keeps one object in each round, and must come to complain. It is a C
 * program, so that the only C++ in it is what the library brings. */

#define _GNU_SOURCE
#include <malloc.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#if defined(_WIN32)
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
#else
#include <dlfcn.h>
#endif

enum { kRounds = 100, kRoundsToSettle = 10 };

/* Any object: its table begins with these. */
typedef struct Object Object;
struct Object {
  const struct Operations {
    int (*addRef)(Object*);
    int (*release)(Object*);
  } * operations;
};

static void require(int holds, const char* what) {
  if (holds) return;
  fprintf(stderr, "unload: not so: %s\n", what);
  exit(1);
}

#if defined(_WIN32)

static char* fullPath(const char* path) { return _fullpath(NULL, path, 0); }

static int isMapped(const char* path) { return GetModuleHandleA(path) != NULL; }

static void* load(const char* path) {
  const HMODULE library = LoadLibraryA(path);
  if (!library) fprintf(stderr, "unload: error %lu\n", GetLastError());
  require(library != NULL, "the library can be loaded");
  return library;
}

static int unload(void* library) { return FreeLibrary(library) != 0; }

static void find(void* library, const char* name, void* function) {
  const FARPROC address = GetProcAddress(library, name);
  require(address != NULL, name);
  memcpy(function, &address, sizeof address);
}

static size_t bytesInUse(void) {
  size_t bytes = 0;
  _HEAPINFO block = {NULL, 0, 0};
  int status = _heapwalk(&block);
  for (; status == _HEAPOK; status = _heapwalk(&block)) {
    if (block._useflag == _USEDENTRY) bytes += block._size;
  }
  require(status == _HEAPEND, "the heap is whole");
  return bytes;
}

/* What the standard library keeps for itself when it is unloaded is not this library's. */
static void keepTheStandardLibrary(void) { load("libstdc++-6.dll"); }

#else

/* The maps have the path without links. */
static char* fullPath(const char* path) { return realpath(path, NULL); }

static int isMapped(const char* path) {
  FILE* const maps = fopen("/proc/self/maps", "r");
  require(maps != NULL, "the maps can be read");
  char line[4352];
  int found = 0;
  while (fgets(line, sizeof line, maps)) found |= strstr(line, path) != NULL;
  fclose(maps);
  return found;
}

static void* load(const char* path) {
  void* const library = dlopen(path, RTLD_NOW | RTLD_LOCAL);
  if (!library) fprintf(stderr, "unload: %s\n", dlerror());
  require(library != NULL, "the library can be loaded");
  return library;
}

static int unload(void* library) { return dlclose(library) == 0; }

/* As POSIX has it, a pointer to an object is copied into one to a function. */
static void find(void* library, const char* name, void* function) {
  void* const address = dlsym(library, name);
  require(address != NULL, name);
  memcpy(function, &address, sizeof address);
}

static size_t bytesInUse(void) { return mallinfo2().uordblks; }

static void keepTheStandardLibrary(void) {}

#endif

/* Counts an object that came out, and ends it. */
static int end(Object* object, int keep) {
  if (!object) return 0;
  require(object->operations->addRef(object) == 2, "a factory gives one reference");
  require(object->operations->release(object) == 1, "a reference is given back");
  if (!keep) require(object->operations->release(object) == 0, "the last reference ends it");
  return 1;
}

/* Reads a text as each of the forms, whether it is one or not. */
static int readAll(void* library, const char* text) {
  Object* (*fromText)(const char*) = NULL;
  Object* (*fromRecord)(const char*, int) = NULL;
  int made = 0;
  find(library, "createCutScripts", &fromText);
  made += end(fromText(text), 0);
  find(library, "createKeyMatrixInfo", &fromText);
  made += end(fromText(text), 0);
  find(library, "createZolResSerializeInfoFromBuffer", &fromText);
  made += end(fromText(text), 0);
  find(library, "createZolResSerializeInfoFromCompletResInfo", &fromRecord);
  return made + end(fromRecord(text, 101), 0);
}

static int oneRound(const char* path, char* const* texts, int forgetful) {
  void* const library = load(path);
  require(load(path) == library, "loading it twice gives the same library");
  require(unload(library) && isMapped(path), "it stays while one still has it");

  Object* (*factory)(void) = NULL;
  find(library, "createZolString", &factory);
  int made = end(factory(), forgetful);
  find(library, "createZOLPCharList", &factory);
  made += end(factory(), 0);
  for (; *texts; ++texts) made += readAll(library, *texts);

  require(unload(library), "it can be unloaded");
  require(!isMapped(path), "it is gone from the maps");
  return made;
}

static char* readFile(const char* name) {
  FILE* const file = fopen(name, "rb");
  require(file != NULL, name);
  char* const text = calloc(1, 1 << 20);
  require(text != NULL && fread(text, 1, (1 << 20) - 1, file) > 0 && feof(file), name);
  fclose(file);
  return text;
}

int main(int argc, char** argv) {
  const int forgetful = argc > 1 && strcmp(argv[1], "--forgetful") == 0;
  argv += 1 + forgetful;
  if (!argv[0] || !argv[1]) {
    fprintf(stderr, "usage: unload [--forgetful] LIBRARY TEXT...\n");
    return 2;
  }
  char* const path = fullPath(argv[0]);
  require(path != NULL, "the library is there");
  for (char** text = argv + 1; *text; ++text) *text = readFile(*text);
  require(!isMapped(path), "it is not loaded yet");
  keepTheStandardLibrary();

  int made = 0;
  size_t settled = 0;
  for (int i = 0; i < kRounds; ++i) {
    made = oneRound(path, argv + 1, forgetful);
    if (i + 1 == kRoundsToSettle) settled = bytesInUse();
  }
  const size_t at_end = bytesInUse();
  printf("%d rounds of %d objects each; the heap holds %zu bytes, after round %d it held %zu\n",
         kRounds, made, at_end, kRoundsToSettle, settled);
  require(at_end == settled, "no round leaves anything behind");
  free(path);
  for (char** text = argv + 1; *text; ++text) free(*text);
  return 0;
}
