#ifndef KYDATA_CUT_MODEL_H_
#define KYDATA_CUT_MODEL_H_

#include <KyDataStructure/cutscript.h>

#include <string>
#include <vector>

#include "owned.h"
#include "times.h"

namespace kydata {

/// A span of a row's source, and where it comes to stand on the finished timeline.
struct Placed {
  std::size_t row;
  Span source;
  Span timeline;
};

struct CutText : Placed {
  std::string text;
  bool hasBroll;
  std::string brollFile;
  Span broll;
};

struct CutHighlight : Placed {
  int type;
};

/// A storyboard row and the clip that it comes from.
struct CutRow {
  int scriptClass;
  std::string title;
  std::string subtitle;
  std::string description;
  std::string file;
  Span timeline;
  Span source;
};

struct CutMusic {
  int type;
  Span timeline;
  std::string description;
  std::string note;
};

/// One script of a reply, copied out of the library's objects.
struct CutScript {
  int number;  ///< counted from 1
  long long count;
  std::string title;
  long long duration;
  std::vector<CutRow> rows;
  std::vector<CutText> texts;
  std::vector<CutHighlight> highlights;
  std::vector<CutMusic> music;
};

/// Reads a cut reply.
/// \throws Fault when it is none.
Owned<ZOL::IZolCutScripts> readCutReply(const std::string& text);

/// \throws Fault when there is no script of that number.
void requireScript(ZOL::IZolCutScripts* scripts, int number);

/// \throws Fault when there is no script of that number.
CutScript scriptOf(ZOL::IZolCutScripts* scripts, int number);

const char* scriptClassName(int scriptClass);
const char* musicTypeName(int type);
const char* highlightTypeName(int type);
/// "0 (emotion)".
std::string typeText(int type, const char* name);

}  // namespace kydata

#endif  // KYDATA_CUT_MODEL_H_
