// A list of rows, written as a text, read and written again.

#ifndef KYDATASTRUCTURE_FUZZ_STORYBOARD_ROWS_H_
#define KYDATASTRUCTURE_FUZZ_STORYBOARD_ROWS_H_

#include <KyDataStructure/cutscript.h>

#include "cutscript/script_state.h"
#include "support/held.h"
#include "support/zol_text.h"
#include "target.h"

inline void requireTheSameRewritten(ZOL::IZolStoryboardInfoList& rows) {
  const Held<ZOL::IZolString> written(createZolString());
  const Held<ZOL::IZolString> again(createZolString());
  const Held<ZOL::IZolStoryboardInfoList> read(createIZolStoryboardInfoList());
  require(storyboardInfoListToJsonBuffer(&rows, written.get()) == ZOL::kSuccess,
          "any rows are written");
  require(jsonBufferToStoryboardInfoList(written.get(), read.get()) == ZOL::kSuccess,
          "what was written is read");
  require(show(*read) == show(rows), "the rows are the same again");
  require(storyboardInfoListToJsonBuffer(read.get(), again.get()) == ZOL::kSuccess,
          "rows are written again");
  require(bytesIn(*again) == bytesIn(*written), "rows are written as before");
}

#endif  // KYDATASTRUCTURE_FUZZ_STORYBOARD_ROWS_H_
