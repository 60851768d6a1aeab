#include "cut_picture.h"

#include <algorithm>
#include <utility>

#include "chart.h"
#include "counted.h"

namespace kydata {

namespace {

std::string ifAny(const std::string& before, const std::string& text) {
  return text.empty() ? "" : before + text;
}

Lane rowsOfClass(const CutScript& script, int scriptClass, const char* title, Paint paint) {
  Lane lane{title, {}, {}};
  for (std::size_t i = 0; i < script.rows.size(); ++i) {
    const CutRow& row = script.rows[i];
    if (row.scriptClass != scriptClass) continue;
    lane.bars.push_back({row.timeline.start, row.timeline.end, row.title,
                         "row " + std::to_string(i + 1) + ifAny(": ", row.title) +
                             ifAny(", ", row.subtitle) + ", " + spanText(row.timeline) +
                             ifAny(", ", row.description),
                         paint});
  }
  return lane;
}

Lane clips(const CutScript& script) {
  Lane lane{"clips", {}, {}};
  for (const CutRow& row : script.rows) {
    lane.bars.push_back({row.timeline.start, row.timeline.end, row.file,
                         row.file + ", in the clip " + spanText(row.source), Paint::kTeal});
  }
  return lane;
}

Lane texts(const CutScript& script) {
  Lane lane{"texts", {}, {}};
  for (const CutText& text : script.texts) {
    const std::string row = "row " + std::to_string(text.row);
    lane.bars.push_back(
        {text.timeline.start, text.timeline.end, text.text.empty() ? row : text.text,
         "text of " + row + ifAny(": ", text.text) + ", in the clip " + spanText(text.source),
         Paint::kYellow});
  }
  return lane;
}

Lane broll(const CutScript& script) {
  Lane lane{"b-roll", {}, {}};
  for (const CutText& text : script.texts) {
    if (!text.hasBroll) continue;
    lane.bars.push_back({text.timeline.start, text.timeline.end, text.brollFile,
                         text.brollFile + ", in the b-roll " + spanText(text.broll),
                         Paint::kGreen});
  }
  return lane;
}

Lane highlights(const CutScript& script) {
  Lane lane;
  for (const CutHighlight& highlight : script.highlights) {
    const std::string name = highlightTypeName(highlight.type);
    lane.bars.push_back({highlight.timeline.start, highlight.timeline.end, name,
                         name + " in row " + std::to_string(highlight.row) + ", in the clip " +
                             spanText(highlight.source),
                         highlight.type == 0 ? Paint::kRed : Paint::kPink});
  }
  return lane;
}

Lane music(const CutScript& script) {
  Lane lane;
  for (const CutMusic& section : script.music) {
    const std::string name = musicTypeName(section.type);
    lane.bars.push_back({section.timeline.start, section.timeline.end,
                         section.description.empty() ? name : section.description,
                         "music, " + name + ifAny(": ", section.description) + ", " +
                             spanText(section.timeline) + ifAny(", ", section.note),
                         section.type == 0 ? Paint::kIndigo : Paint::kBrown});
  }
  return lane;
}

LaneGroup withoutEmptyLanes(std::string title, std::vector<Lane> lanes) {
  const auto isEmpty = [](const Lane& lane) { return lane.bars.empty(); };
  lanes.erase(std::remove_if(lanes.begin(), lanes.end(), isEmpty), lanes.end());
  return {std::move(title), std::move(lanes)};
}

std::vector<LaneGroup> groupsOf(const CutScript& script) {
  std::vector<LaneGroup> groups = {
      withoutEmptyLanes("Storyboard", {rowsOfClass(script, 1, "titles", Paint::kOrange),
                                       rowsOfClass(script, 2, "chapters", Paint::kBlue),
                                       rowsOfClass(script, 3, "frames", Paint::kPurple),
                                       rowsOfClass(script, 0, "plain rows", Paint::kGrey)}),
      withoutEmptyLanes("Source", {clips(script), texts(script), broll(script)}),
      withoutEmptyLanes("Highlights", {highlights(script)}),
      withoutEmptyLanes("Music", {music(script)}),
  };
  const auto isEmpty = [](const LaneGroup& group) { return group.lanes.empty(); };
  groups.erase(std::remove_if(groups.begin(), groups.end(), isEmpty), groups.end());
  return groups;
}

/// What the colours mean, for those that are there.
std::vector<LegendEntry> legendOf(const std::vector<LaneGroup>& groups) {
  const std::vector<LegendEntry> all = {
      {Paint::kOrange, "title"},          {Paint::kBlue, "chapter"},
      {Paint::kPurple, "frame"},          {Paint::kGrey, "plain row"},
      {Paint::kTeal, "source clip"},      {Paint::kYellow, "text"},
      {Paint::kGreen, "b-roll"},          {Paint::kRed, "highlight, emotion"},
      {Paint::kPink, "highlight, other"}, {Paint::kIndigo, "music, t2m"},
      {Paint::kBrown, "music, other"},
  };
  std::vector<LegendEntry> used;
  for (const LegendEntry& entry : all) {
    for (const LaneGroup& group : groups) {
      const bool isUsed =
          std::any_of(group.lanes.begin(), group.lanes.end(), [&](const Lane& lane) {
            return std::any_of(lane.bars.begin(), lane.bars.end(),
                               [&](const Bar& bar) { return bar.paint == entry.paint; });
          });
      if (isUsed) used.push_back(entry);
    }
  }
  return used;
}

}  // namespace

std::string drawCut(const CutScript& script) {
  Chart chart;
  chart.title = script.title.empty() ? "Script " + std::to_string(script.number) : script.title;
  chart.subtitle = "Script " + std::to_string(script.number) + " of " +
                   std::to_string(script.count) + ", " + counted(script.rows.size(), "row") +
                   ", duration " + timeText(script.duration) + ", times taken as milliseconds";
  chart.plotWidth = std::clamp(40.0 * static_cast<double>(script.rows.size()), 1000.0, 9000.0);
  chart.groups = groupsOf(script);
  chart.legend = legendOf(chart.groups);
  return drawChart(chart);
}

}  // namespace kydata
