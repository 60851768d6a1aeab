#include "cutscript/script_state.h"

#include "support/held.h"
#include "support/zol_text.h"

namespace {

std::string span(long long start, long long end) {
  return std::to_string(start) + ".." + std::to_string(end);
}

std::string quote(const std::string& text) { return "\"" + escaped(text) + "\""; }

// Nothing for an empty text.
std::string named(const char* name, const std::string& text) {
  return text.empty() ? "" : std::string(", ") + name + " " + quote(text);
}

std::string className(int scriptClass) {
  static const char* const names[] = {"plain", "title", "chapter", "frame"};
  if (scriptClass >= 0 && scriptClass < 4) return names[scriptClass];
  return "class " + std::to_string(scriptClass);
}

template <class State>
std::string list(const std::vector<State>& states) {
  std::string text;
  for (const State& state : states) text += (text.empty() ? "" : ", ") + show(state);
  return "[" + text + "]";
}

template <class List>
auto statesOf(List& objects) {
  std::vector<decltype(stateOf(*objects.at(0)))> states;
  for (long long i = 0; i < objects.size(); ++i) states.push_back(stateOf(*objects.at(i)));
  return states;
}

}  // namespace

std::string show(const RowState& row) {
  return "row " + span(row.start, row.end) + " " + className(row.scriptClass) +
         named("title", row.title) + named("subtitle", row.subtitle) +
         named("description", row.description);
}

std::string show(const TextState& text) {
  std::string shown = span(text.start, text.end);
  if (!text.text.empty()) shown += " " + quote(text.text);
  if (text.hasBroll) shown += " over";
  if (!text.brollFileName.empty()) shown += " " + quote(text.brollFileName);
  if (text.brollStart != 0 || text.brollEnd != 0) {
    shown += " from " + span(text.brollStart, text.brollEnd);
  }
  return shown;
}

std::string show(const HighlightState& highlight) {
  return span(highlight.trimIn, highlight.trimOut) + " type " + std::to_string(highlight.type);
}

std::string show(const ClipState& clip) {
  return "clip " + span(clip.start, clip.end) + " " + className(clip.scriptClass) +
         named("title", clip.title) + named("subtitle", clip.subtitle) +
         named("file", clip.fileName) + (clip.texts ? ", texts " + list(*clip.texts) : "") +
         (clip.highlights ? ", highlights " + list(*clip.highlights) : "");
}

std::string show(const MusicState& music) {
  return "music " + span(music.start, music.end) + " type " + std::to_string(music.type) +
         named("description", music.description) + named("note", music.note);
}

std::string show(const std::vector<ScriptState>& scripts) {
  std::string text;
  for (const ScriptState& script : scripts) {
    text += "script " + quote(script.title) + ", lasts " + std::to_string(script.duration) + "\n";
    // A row and its clip stand together.
    for (std::size_t i = 0; i < script.rows.size() || i < script.clips.size(); ++i) {
      if (i < script.rows.size()) text += "  " + show(script.rows[i]) + "\n";
      if (i < script.clips.size()) text += "  " + show(script.clips[i]) + "\n";
    }
    for (const MusicState& music : script.music) text += "  " + show(music) + "\n";
  }
  return text;
}

RowState stateOf(ZOL::IZolStoryboardInfo& row) {
  return {row.scriptClass(), row.title(), row.subtitle(), row.description(), row.start(),
          row.end()};
}

TextState stateOf(ZOL::IZolTextInfo& text) {
  return {text.start(),         text.end(),        text.text(),    text.hasBroll(),
          text.brollFileName(), text.brollStart(), text.brollEnd()};
}

HighlightState stateOf(ZOL::IZolHighlightInfo& highlight) {
  return {highlight.hlType(), highlight.trimIn(), highlight.trimOut()};
}

ClipState stateOf(ZOL::IZolSmartCutClipInfo& clip) {
  ClipState state{clip.scriptClass(), clip.title(), clip.subtitle(), clip.fileName(),
                  clip.start(),       clip.end(),   {},              {}};
  if (clip.textInfoList()) state.texts = statesOf(*clip.textInfoList());
  if (clip.highlightInfoList()) state.highlights = statesOf(*clip.highlightInfoList());
  return state;
}

MusicState stateOf(ZOL::IZolMusicInfo& music) {
  return {music.musicType(), music.start(), music.end(), music.description(), music.note()};
}

std::vector<ScriptState> stateOf(ZOL::IZolCutScripts& scripts) {
  const Held<ZOL::IZolMusicInfoList> music(createIZolMusicInfoList());
  std::vector<ScriptState> states;
  for (int i = 0; i < scripts.scriptCount(); ++i) {
    scripts.getMusicInfoList(i, music.get());
    states.push_back({scripts.scriptTitle(i), scripts.scriptDuration(i),
                      statesOf(*scripts.storyboardInfoList(i)),
                      statesOf(*scripts.smartCutClipInfoList(i)), statesOf(*music)});
  }
  return states;
}

std::string show(ZOL::IZolStoryboardInfoList& rows) {
  std::string text;
  for (long long i = 0; i < rows.size(); ++i) {
    ZOL::IZolStoryboardInfo* const row = rows.at(i);
    text += (row ? show(*row) : "null") + "\n";
  }
  return text;
}

std::string show(ZOL::IZolMusicInfoList& sections) {
  std::string text;
  for (const MusicState& music : statesOf(sections)) text += show(music) + "\n";
  return text;
}

std::string showCut(const std::string& reply) {
  const Held<ZOL::IZolCutScripts> scripts(createCutScripts(reply.c_str()));
  return scripts.get() ? show(*scripts) : "null";
}
