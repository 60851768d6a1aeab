// How often does reading a cut reply ask the heap, for each row?

#include <KyDataStructure/cutscript.h>

#include <cstddef>
#include <cstdlib>

#include "inputs/cut_reply.h"
#include "support/cut.h"
#include "support/owned.h"
#include "support/ratio.h"

namespace {

std::size_t allocations = 0;

}  // namespace

// These stand before the C library's own, for the program and for all its libraries.
// The names below are those under which that library keeps its own.
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* memory, std::size_t size);

void* malloc(std::size_t size) noexcept {
  ++allocations;
  return __libc_malloc(size);
}
void* calloc(std::size_t count, std::size_t size) noexcept {
  ++allocations;
  return __libc_calloc(count, size);
}
void* realloc(void* memory, std::size_t size) noexcept {
  ++allocations;
  return __libc_realloc(memory, size);
}
}

int main(int argc, char** argv) {
  const bench::CutReply reply = bench::cutReply(10000000);
  const std::size_t before = allocations;
  const auto cut = bench::owned(createCutScripts(reply.text.c_str()));
  const std::size_t made = allocations - before;
  bench::proveCut(cut.get(), reply.text);

  bench::RatioTable table;
  table.state("allocations of createCutScripts of 10 MB", "rows",
              static_cast<double>(made) / static_cast<double>(reply.rows), bench::noAim());
  return table.run(argc, argv);
}
