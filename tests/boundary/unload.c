/* Loads the library, reads texts with it and unloads it, a hundred times, and proves by
 * the maps of the process that it is gone each time and by the heap that nothing stays. A
 * single unique symbol of the standard library would keep it: the export list hides them.
 *
 *   unload [--forgetful] LIBRARY TEXT...
 *
 * With --forgetful it keeps one object in each round, and must come to complain. It is a C
 * program, so that the only C++ in it is what the library brings. */

#define _GNU_SOURCE
#include <dlfcn.h>
#include <malloc.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

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

/* As POSIX has it, a pointer to an object is copied into one to a function. */
static void find(void* library, const char* name, void* function) {
  void* const address = dlsym(library, name);
  require(address != NULL, name);
  memcpy(function, &address, sizeof address);
}

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
  require(dlclose(library) == 0 && isMapped(path), "it stays while one still has it");

  Object* (*factory)(void) = NULL;
  find(library, "createZolString", &factory);
  int made = end(factory(), forgetful);
  find(library, "createZOLPCharList", &factory);
  made += end(factory(), 0);
  for (; *texts; ++texts) made += readAll(library, *texts);

  require(dlclose(library) == 0, "it can be unloaded");
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
  /* The maps have the path without links. */
  char* const path = realpath(argv[0], NULL);
  require(path != NULL, "the library is there");
  for (char** text = argv + 1; *text; ++text) *text = readFile(*text);
  require(!isMapped(path), "it is not loaded yet");

  int made = 0;
  size_t settled = 0;
  for (int i = 0; i < kRounds; ++i) {
    made = oneRound(path, argv + 1, forgetful);
    if (i + 1 == kRoundsToSettle) settled = mallinfo2().uordblks;
  }
  const size_t at_end = mallinfo2().uordblks;
  printf("%d rounds of %d objects each; the heap holds %zu bytes, after round %d it held %zu\n",
         kRounds, made, at_end, kRoundsToSettle, settled);
  require(at_end == settled, "no round leaves anything behind");
  free(path);
  for (char** text = argv + 1; *text; ++text) free(*text);
  return 0;
}
