// A cut as a test compares it: plain values, and their text.
//
//   script "Weekend", lasts 7000
//     row 0..5000 chapter, title "Arrival"
//     clip 0..5000 chapter, title "Arrival", file "a.mp4", texts [0..900 over "b.mp4"]
//     music 0..7000 type 1, description "Drums"

#ifndef KYDATASTRUCTURE_TESTS_CUTSCRIPT_SCRIPT_STATE_H_
#define KYDATASTRUCTURE_TESTS_CUTSCRIPT_SCRIPT_STATE_H_

#include <KyDataStructure/cutscript.h>

#include <optional>
#include <string>
#include <vector>

struct RowState {
  int scriptClass = 0;
  std::string title;
  std::string subtitle;
  std::string description;
  long long start = 0;
  long long end = 0;
};

struct TextState {
  long long start = 0;
  long long end = 0;
  std::string text;
  bool hasBroll = false;
  std::string brollFileName;
  long long brollStart = 0;
  long long brollEnd = 0;
};

struct HighlightState {
  int type = 0;
  long long trimIn = 0;
  long long trimOut = 0;
};

struct ClipState {
  int scriptClass = 0;
  std::string title;
  std::string subtitle;
  std::string fileName;
  long long start = 0;
  long long end = 0;
  std::optional<std::vector<TextState>> texts;
  std::optional<std::vector<HighlightState>> highlights;
};

struct MusicState {
  int type = 0;
  long long start = 0;
  long long end = 0;
  std::string description;
  std::string note;
};

struct ScriptState {
  std::string title;
  long long duration = 0;
  std::vector<RowState> rows;
  std::vector<ClipState> clips;
  std::vector<MusicState> music;
};

// Empty texts and lists that are not there are left out.
std::string show(const RowState& row);
std::string show(const TextState& text);
std::string show(const HighlightState& highlight);
std::string show(const ClipState& clip);
std::string show(const MusicState& music);
std::string show(const std::vector<ScriptState>& scripts);

RowState stateOf(ZOL::IZolStoryboardInfo& row);
TextState stateOf(ZOL::IZolTextInfo& text);
HighlightState stateOf(ZOL::IZolHighlightInfo& highlight);
ClipState stateOf(ZOL::IZolSmartCutClipInfo& clip);
MusicState stateOf(ZOL::IZolMusicInfo& music);
std::vector<ScriptState> stateOf(ZOL::IZolCutScripts& scripts);

inline std::string show(ZOL::IZolStoryboardInfo& row) { return show(stateOf(row)); }
inline std::string show(ZOL::IZolTextInfo& text) { return show(stateOf(text)); }
inline std::string show(ZOL::IZolHighlightInfo& highlight) { return show(stateOf(highlight)); }
inline std::string show(ZOL::IZolSmartCutClipInfo& clip) { return show(stateOf(clip)); }
inline std::string show(ZOL::IZolMusicInfo& music) { return show(stateOf(music)); }
inline std::string show(ZOL::IZolCutScripts& scripts) { return show(stateOf(scripts)); }

// What a list holds, a line for each; "null\n" for a null row.
std::string show(ZOL::IZolStoryboardInfoList& rows);
std::string show(ZOL::IZolMusicInfoList& sections);

// What comes of a reply, and "null" for one that is not taken.
std::string showCut(const std::string& reply);

#endif  // KYDATASTRUCTURE_TESTS_CUTSCRIPT_SCRIPT_STATE_H_
