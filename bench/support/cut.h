// What a cut has to hold, by the reply that it was read from.

#ifndef KYDATASTRUCTURE_BENCH_SUPPORT_CUT_H_
#define KYDATASTRUCTURE_BENCH_SUPPORT_CUT_H_

#include <KyDataStructure/cutscript.h>

#include <cstddef>
#include <string>

namespace bench {

// Ends the program unless every row, clip, text and highlight, and the number of the
// music sections, are those of the generated reply.
void proveCut(ZOL::IZolCutScripts* cut, const std::string& reply);

// How many rows all scripts have.
std::size_t rowsOf(ZOL::IZolCutScripts* cut);

}  // namespace bench

#endif  // KYDATASTRUCTURE_BENCH_SUPPORT_CUT_H_
