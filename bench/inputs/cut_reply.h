// A cut service's reply.

#ifndef KYDATASTRUCTURE_BENCH_INPUTS_CUT_REPLY_H_
#define KYDATASTRUCTURE_BENCH_INPUTS_CUT_REPLY_H_

#include <cstddef>
#include <string>

namespace bench {

struct CutReply {
  std::string text;
  std::size_t rows;
};

// Scripts of 400 rows until the text has that many bytes. A row takes about 840: five
// strings, two texts with b-roll, a highlight.
CutReply cutReply(std::size_t bytes);

}  // namespace bench

#endif  // KYDATASTRUCTURE_BENCH_INPUTS_CUT_REPLY_H_
