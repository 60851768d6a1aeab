#include "commands.h"
#include "cut_model.h"
#include "cut_picture.h"
#include "input.h"
#include "text_table.h"
#include "utf8.h"

namespace kydata {

namespace {

void printTable(const std::string& title, const TextTable& table, Output& out) {
  if (table.isEmpty()) return;
  out.text() << '\n' << out.heading(title) << '\n';
  table.print(out);
}

void printRows(const CutScript& script, Output& out) {
  TextTable table({{"row", true},
                   {"class"},
                   {"timeline"},
                   {"length", true},
                   {"title", false, 24},
                   {"subtitle", false, 20},
                   {"clip", false, 24},
                   {"in the clip"},
                   {"description"}});
  for (std::size_t i = 0; i < script.rows.size(); ++i) {
    const CutRow& row = script.rows[i];
    table.add({std::to_string(i + 1), scriptClassName(row.scriptClass), spanText(row.timeline),
               timeText(minus(row.timeline.end, row.timeline.start)), row.title, row.subtitle,
               row.file, spanText(row.source), row.description});
  }
  printTable("Rows", table, out);
}

void printTexts(const CutScript& script, Output& out) {
  TextTable table({{"row", true},
                   {"timeline"},
                   {"in the clip"},
                   {"b-roll", false, 24},
                   {"in the b-roll"},
                   {"text"}});
  for (const CutText& text : script.texts) {
    table.add({std::to_string(text.row), spanText(text.timeline), spanText(text.source),
               text.brollFile, text.hasBroll ? spanText(text.broll) : "", text.text});
  }
  printTable("Texts", table, out);
}

void printHighlights(const CutScript& script, Output& out) {
  TextTable table({{"row", true}, {"timeline"}, {"in the clip"}, {"type"}});
  for (const CutHighlight& highlight : script.highlights) {
    table.add({std::to_string(highlight.row), spanText(highlight.timeline),
               spanText(highlight.source),
               typeText(highlight.type, highlightTypeName(highlight.type))});
  }
  printTable("Highlights", table, out);
}

void printMusic(const CutScript& script, Output& out) {
  TextTable table(
      {{"section", true}, {"timeline"}, {"type"}, {"description", false, 48}, {"note"}});
  for (std::size_t i = 0; i < script.music.size(); ++i) {
    const CutMusic& music = script.music[i];
    table.add({std::to_string(i + 1), spanText(music.timeline),
               typeText(music.type, musicTypeName(music.type)), music.description, music.note});
  }
  printTable("Music", table, out);
}

void printScript(const CutScript& script, Output& out) {
  const std::string title =
      script.title.empty() ? "without a title" : "\"" + printable(script.title) + "\"";
  out.text() << out.heading("Script " + std::to_string(script.number) + " of " +
                            std::to_string(script.count) + ", " + title)
             << "\n  duration " << timeText(script.duration) << ", times taken as milliseconds\n";
  printRows(script, out);
  printTexts(script, out);
  printHighlights(script, out);
  printMusic(script, out);
}

void printScripts(ZOL::IZolCutScripts* scripts, Output& out) {
  const auto count = static_cast<int>(scripts->scriptCount());
  if (count == 0) out.text() << "no scripts\n";
  for (int number = 1; number <= count; ++number) {
    if (number > 1) out.text() << '\n';
    printScript(scriptOf(scripts, number), out);
  }
}

}  // namespace

void showCut(const Input& input, Output& out) { printScripts(readCutReply(input.text).get(), out); }

bool runCut(const CutOptions& options, Output& out) {
  std::string picture;
  const bool isRead = reportingFaults(inputName(options.file), [&] {
    const Input input = readInput(options.file);
    if (options.svg.empty() && !options.script) {
      showCut(input, out);
      return;
    }
    const auto scripts = readCutReply(input.text);
    const CutScript script = scriptOf(scripts.get(), options.script.value_or(1));
    if (options.svg.empty()) {
      printScript(script, out);
    } else {
      picture = drawCut(script);
    }
  });
  if (!isRead || options.svg.empty()) return isRead;
  return reportingFaults(options.svg, [&] { writeFile(out, options.svg, picture); });
}

}  // namespace kydata
