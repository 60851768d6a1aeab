#include "command_line.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <iostream>
#include <string>
#include <vector>

#include "commands.h"
#include "info_types.h"
#include "input.h"
#include "status_line.h"

namespace kydata {

namespace {

constexpr int kSomethingFailed = 1;
constexpr int kWrongUsage = 2;

const char* const kExitStatus =
    "Exit status:\n"
    "  0  everything was handled\n"
    "  1  a file could not be; standard error names it and says why\n"
    "  2  the command line was wrong";

std::string footer(const std::string& text) { return text + "\n" + kExitStatus; }

std::string listOfInfoTypes() {
  std::string text = "Info types of the complete form:";
  const char* previous = "";
  for (const InfoType& type : kInfoTypes) {
    const bool isSame = std::string(type.meaning) == previous;
    if (!isSame) text += "\n  " + std::string(type.meaning) + ":";
    text += (isSame ? ", " : " ") + std::to_string(type.code);
    previous = type.meaning;
  }
  return text + "\n";
}

/// What the command line may hold, and what it asked for.
class CommandLine {
 public:
  CommandLine() : app_("Reads the texts of a video editor's data model and shows what they hold.") {
    app_.name("kydata");
    app_.allow_windows_style_options(false);  // "/here/cut.json" is a file everywhere
    app_.set_version_flag("--version", "kydata " KYDATA_VERSION);
    app_.require_subcommand(0, 1);
    app_.footer(
        footer("Without a command, kydata shows a file as the command for its form does. It asks\n"
               "the library's readers in this order, and takes the first form that is there:\n"
               "  cut reply             an array\n"
               "  dataMap               an object \"dataMap\" of nothing but texts, strict JSON\n"
               "  storyboard text       an array \"storyboard_infos\"\n"
               "  resource description  a valid description in the normal form\n"
               "  analysis report       a dimension or a keyword\n"
               "  highlight text        an integer \"HLType\", \"trimIn\" or \"trimOut\"\n"
               "Of a text that is none of them, kydata check tells why.\n"
               "\nExamples:\n"
               "  kydata examples/data/highlight.json\n"
               "  kydata resource examples/data/pack_title.json\n\n"
               "kydata COMMAND --help tells more of one command.\n"));
    app_.add_option("FILE", file_, "A text to recognise; - is standard input")->type_name("");
    addColour(&app_);
    addResource();
    addCut();
    addReport();
    addStoryboard();
    addDataMap();
    addCheck();
  }

  void parse(const std::vector<std::string>& arguments) {
    std::vector<const char*> words;
    for (const std::string& argument : arguments) words.push_back(argument.c_str());
    app_.parse(static_cast<int>(words.size()), words.data());
    const bool hasCommand = !app_.get_subcommands().empty();
    if (hasCommand && !file_.empty()) {
      throw CLI::ExtrasError({file_ + " in front of the command"});
    }
    if (!hasCommand && file_.empty()) throw CLI::RequiredError("a command or a file");
    if (checkCommand_->parsed()) askCheckFor();
  }

  Colour colour() const { return colour_; }

  bool run(Output& out) const {
    if (resourceCommand_->parsed()) return runResource(resource_, out);
    if (cutCommand_->parsed()) return runCut(cut_, out);
    if (reportCommand_->parsed()) return runReport(report_, out);
    if (storyboardCommand_->parsed()) return runStoryboard(storyboard_, out);
    if (dataMapCommand_->parsed()) return runDataMap(dataMap_, out);
    if (checkCommand_->parsed()) return runCheck(check_, out);
    return runRecognise(file_, out);
  }

  /// Answers a request for help or the version with 0, and anything else with a
  /// line of what is wrong and one of how the command is used.
  int explain(const CLI::ParseError& error) const {
    if (error.get_exit_code() == 0) return app_.exit(error);
    std::cerr << "kydata: " << whatIsWrong(error) << "\nUsage: kydata " << usage()
              << "\nRun it with --help for more.\n";
    return kWrongUsage;
  }

 private:
  static constexpr const char* kResourceUsage =
      "resource [--complete INFOTYPE | --unique] [--lines] [--normal] FILE...";
  static constexpr const char* kCutUsage = "cut [--script N] [--svg OUT] FILE";
  static constexpr const char* kReportUsage = "report [--svg OUT] FILE";
  static constexpr const char* kStoryboardUsage = "storyboard [--script N] FILE";
  static constexpr const char* kDataMapUsage = "datamap [--normal] FILE...";
  static constexpr const char* kCheckUsage =
      "check [--form NAME | --complete INFOTYPE] [--limit N] [--json] FILE...";

  std::string whatIsWrong(const CLI::ParseError& error) const {
    if (!app_.get_subcommands().empty()) return error.what();
    const std::vector<std::string> words = app_.remaining();
    if (words.empty()) return error.what();
    if (words.front().rfind('-', 0) == 0) return "there is no option \"" + words.front() + "\"";
    return "\"" + file_ + "\" is no command, and without a command there is one file alone";
  }

  std::string usage() const {
    if (resourceCommand_->parsed()) return kResourceUsage;
    if (cutCommand_->parsed()) return kCutUsage;
    if (reportCommand_->parsed()) return kReportUsage;
    if (storyboardCommand_->parsed()) return kStoryboardUsage;
    if (dataMapCommand_->parsed()) return kDataMapUsage;
    if (checkCommand_->parsed()) return kCheckUsage;
    return "[resource|cut|report|storyboard|datamap|check] [OPTIONS] FILE...";
  }

  void addResource() {
    CLI::App* command = app_.add_subcommand("resource", "Shows resource descriptions");
    resourceCommand_ = command;
    command->add_option("FILE", resource_.files, "Texts to read; - is standard input")
        ->required()
        ->type_name("");
    auto* complete = command
                         ->add_option("--complete", resource_.completeType,
                                      "Read the complete form of this info type")
                         ->type_name("INFOTYPE")
                         ->check(CLI::Validator(isInfoType, "", "info type"));
    command->add_flag("--lines", resource_.linesAreTexts,
                      "Each line of a file is a text of its own");
    command->add_flag("--normal", resource_.writeNormal, "Write the normal form, one in a line");
    command
        ->add_flag("--unique", resource_.unique,
                   "Take all texts as one list, and keep the first of each unique key")
        ->excludes(complete);
    addColour(command);
    command->footer(footer(
        "Control characters are shown as escapes, and a backslash as two.\n\n" + listOfInfoTypes() +
        "\nExamples:\n"
        "  kydata resource pack.json                   a description as a table\n"
        "  kydata resource --complete 101 photo.json   a stock record as a table\n"
        "  kydata resource --complete 101 --normal photo.json | kydata resource -\n"
        "  kydata resource --unique list/*.json        which of them are doubles\n"));
  }

  void addCut() {
    CLI::App* command = app_.add_subcommand("cut", "Shows the scripts of a cut reply");
    cutCommand_ = command;
    command->add_option("FILE", cut_.file, "The reply; - is standard input")
        ->required()
        ->type_name("");
    command->add_option("--script", cut_.script, "Only this script, counted from 1")
        ->type_name("N")
        ->check(CLI::Validator(isCount, "", "count"));
    addSvg(command, cut_.svg, "Draw a script (the first, unless --script says) as a timeline");
    addColour(command);
    command->footer(
        footer("A reply does not tell the unit of its times: they are shown as milliseconds.\n"
               "Texts and highlights stand at times of their source. On the finished timeline\n"
               "they are placed through the clip of their row, row start + (time - clip start),\n"
               "and kept within the row.\n"
               "\nExamples:\n"
               "  kydata cut reply.json\n"
               "  kydata cut reply.json --script 2 --svg timeline.svg\n"));
  }

  void addReport() {
    CLI::App* command = app_.add_subcommand("report", "Shows an analysis report");
    reportCommand_ = command;
    command->add_option("FILE", report_.file, "The report; - is standard input")
        ->required()
        ->type_name("");
    addSvg(command, report_.svg, "Draw the spans of all dimensions over time");
    addColour(command);
    command->footer(
        footer("Score samples are not shown: the library keeps them and does not give them out.\n"
               "\nExamples:\n"
               "  kydata report report.json\n"
               "  kydata report report.json --svg spans.svg\n"));
  }

  void addStoryboard() {
    CLI::App* command =
        app_.add_subcommand("storyboard", "Writes the storyboard text of a cut reply");
    storyboardCommand_ = command;
    command
        ->add_option("FILE", storyboard_.file,
                     "A cut reply or a storyboard text; - is standard input")
        ->required()
        ->type_name("");
    command->add_option("--script", storyboard_.script, "Which script of a reply, counted from 1")
        ->type_name("N")
        ->check(CLI::Validator(isCount, "", "count"));
    addColour(command);
    command->footer(
        footer("Of a storyboard text, rows that lack a member are left out.\n"
               "\nExamples:\n"
               "  kydata storyboard reply.json > storyboard.json\n"
               "  kydata storyboard reply.json --script 2 | kydata storyboard -\n"));
  }

  void addDataMap() {
    CLI::App* command = app_.add_subcommand("datamap", "Shows the texts of dataMap texts by id");
    dataMapCommand_ = command;
    command->add_option("FILE", dataMap_.files, "Texts to read; - is standard input")
        ->required()
        ->type_name("");
    command->add_flag("--normal", dataMap_.writeNormal, "Write the text as the library writes it");
    addColour(command);
    command->footer(footer(
        "Alone among the texts, this one is strict JSON: there are no comments and no\n"
        "trailing commas in it, and nothing stands behind it. Names are taken as numbers, 0\n"
        "where they begin with none, and of equal numbers the last one counts.\n"
        "\nExamples:\n"
        "  kydata datamap map.json\n"
        "  kydata datamap --normal map.json | kydata datamap -\n"));
  }

  void addCheck() {
    CLI::App* command =
        app_.add_subcommand("check", "Tells what the library passes over in a text, and why");
    checkCommand_ = command;
    command->add_option("FILE", check_.files, "Texts to check; - is standard input")->type_name("");
    auto* form = command->add_option("--form", check_.form, "Take the texts as this form")
                     ->type_name("NAME")
                     ->check(CLI::Validator(isFormName, "", "form"));
    command
        ->add_option("--complete", check_.completeType,
                     "Take the texts as the complete form of this info type")
        ->type_name("INFOTYPE")
        ->check(CLI::Validator(isInfoType, "", "info type"))
        ->excludes(form);
    command
        ->add_option("--limit", check_.limit,
                     "Show at most N findings that are alike, 10 unless told; 0 shows all")
        ->type_name("N")
        ->check(CLI::Validator(isNumber, "", "number"));
    command->add_flag("--json", check_.writeJson, "Write the findings as JSON");
    command->add_flag("--schema", check_.writeSchema,
                      "Write the form's JSON Schema, and check nothing");
    command->add_flag("--codes", check_.listCodes, "List what may be found, and check nothing");
    addColour(command);
    command->footer(
        "Forms: cut, datamap, storyboard, resource, report, highlight. Without --form they\n"
        "are told from the text, as kydata FILE does; a record only --complete can tell.\n\n" +
        listOfInfoTypes() +
        "\nA finding stands behind FILE:LINE:COLUMN:. An error is why the library refuses the\n"
        "text, a warning is of what is lost or read as something else, a note of what is\n"
        "worth knowing and needs no other text. docs/findings.md explains each code.\n"
        "\nExamples:\n"
        "  kydata check reply.json                     whatever form it is\n"
        "  kydata check --complete 106 sticker.json    a provider's record\n"
        "  kydata check --json *.json                  for another program\n"
        "  kydata check --form cut --schema            the JSON Schema of cut replies\n"
        "\nExit status:\n"
        "  0  nothing was found, or notes alone\n"
        "  1  a warning or an error was found, or a file could not be read\n"
        "  2  the command line was wrong");
  }

  void askCheckFor() {
    const bool hasForm = !check_.form.empty() || check_.completeType;
    const bool asksForFiles = !check_.writeSchema && !check_.listCodes;
    if (check_.writeSchema && !hasForm) throw CLI::RequiredError("--form or --complete");
    if (asksForFiles && check_.files.empty()) throw CLI::RequiredError("FILE");
    if (!asksForFiles && !check_.files.empty()) {
      throw CLI::ExtrasError({check_.files.front() + ", as nothing is checked"});
    }
  }

  static void addSvg(CLI::App* command, std::string& file, const std::string& text) {
    command->add_option("--svg", file, text + ", and write that picture; - is standard output")
        ->type_name("OUT");
  }

  void addColour(CLI::App* command) {
    command
        ->add_option_function<std::string>(
            "--color", [this](const std::string& word) { colour_ = colourOf(word)->colour; },
            "When to use colour: auto (on a terminal, unless NO_COLOR is set), always or never")
        ->type_name("WHEN")
        ->check(CLI::Validator(isColour, "", "colour"));
  }

  struct ColourWord {
    const char* word;
    Colour colour;
  };

  static const ColourWord* colourOf(const std::string& word) {
    static constexpr std::array<ColourWord, 3> kWords = {{
        {"auto", Colour::automatic},
        {"always", Colour::always},
        {"never", Colour::never},
    }};
    const auto* const found = std::find_if(
        kWords.begin(), kWords.end(), [&](const ColourWord& known) { return word == known.word; });
    return found == kWords.end() ? nullptr : found;
  }

  static std::string isColour(const std::string& word) {
    return colourOf(word) ? "" : "WHEN is auto, always or never, and not \"" + word + "\"";
  }

  static std::string isCount(const std::string& text) {
    const bool isNumber = text.find_first_not_of("0123456789") == std::string::npos;
    const bool isPositive = text.find_first_not_of('0') != std::string::npos;
    if (isNumber && isPositive && text.size() < 10) return "";
    return "N counts scripts from 1, and \"" + text + "\" is no such number";
  }

  static std::string isNumber(const std::string& text) {
    const bool isNumber = text.find_first_not_of("0123456789") == std::string::npos;
    return isNumber && text.size() < 10 ? "" : "N is a number, and not \"" + text + "\"";
  }

  static std::string isFormName(const std::string& text) {
    return isForm(text) ? "" : "there is no form \"" + text + "\"; --help lists them";
  }

  static std::string isInfoType(const std::string& text) {
    for (const InfoType& type : kInfoTypes) {
      if (text == std::to_string(type.code)) return "";
    }
    return "there is no info type " + text + "; --help lists them";
  }

  CLI::App app_;
  CLI::App* resourceCommand_ = nullptr;
  CLI::App* cutCommand_ = nullptr;
  CLI::App* reportCommand_ = nullptr;
  CLI::App* storyboardCommand_ = nullptr;
  CLI::App* dataMapCommand_ = nullptr;
  CLI::App* checkCommand_ = nullptr;
  std::string file_;  ///< given without a command
  Colour colour_ = Colour::automatic;
  ResourceOptions resource_;
  CutOptions cut_;
  ReportOptions report_;
  StoryboardOptions storyboard_;
  DataMapOptions dataMap_;
  CheckOptions check_;
};

}  // namespace

int runCommandLine(const std::vector<std::string>& arguments) {
  CommandLine commandLine;
  try {
    commandLine.parse(arguments);
  } catch (const CLI::ParseError& error) {
    return commandLine.explain(error);
  }
  Output out(commandLine.colour());
  const bool allGood = commandLine.run(out);
  const bool allWritten = reportingFaults("standard output", [&] { out.finish(); });
  clearStatus();
  return allGood && allWritten ? 0 : kSomethingFailed;
}

}  // namespace kydata
