// The subcommands of quorbit-level: compile, decompile, check and table.
#include "level_commands.h"

#include <algorithm>
#include <filesystem>
#include <ostream>

#include "core/file_read.h"
#include "leveltext/level_check.h"
#include "leveltext/level_files.h"
#include "leveltext/level_table.h"
#include "leveltext/level_text.h"

namespace qb::leveltext {
namespace {

bool EndsWith(const std::string& s, const std::string& tail) {
  return s.size() >= tail.size() && s.compare(s.size() - tail.size(), tail.size(), tail) == 0;
}

// Splits "-o FILE" off the arguments; false when -o has no file or is given twice.
bool TakeOutput(std::vector<std::string>& args, std::string& output) {
  std::vector<std::string> rest;
  for (std::size_t i = 0; i < args.size(); ++i) {
    if (args[i] == "-o") {
      if (i + 1 >= args.size() || !output.empty()) return false;
      output = args[++i];
    } else {
      rest.push_back(args[i]);
    }
  }
  args = rest;
  return true;
}

bool IsText(const std::string& path) {
  return EndsWith(path, ".txt");
}

std::string AsText(const std::vector<uint8_t>& bytes) {
  return {bytes.begin(), bytes.end()};
}

// A level text or a level file, each refused above the largest size it can have.
FileRead ReadInput(const std::string& path, bool text) {
  return ReadSmallFile(path, text ? kMaxTextFileBytes : kMaxLevelFileBytes);
}

std::string CannotRead(const std::string& path, const FileRead& read) {
  return path + ": error: cannot read the file: " + read.error;
}

}  // namespace

int Compile(std::vector<std::string> args, std::ostream& out, std::ostream& err) {
  std::string output;
  if (!TakeOutput(args, output) || args.size() != 1) {
    err << "usage: quorbit-level compile LEVEL.txt [-o LEVEL.lvl]\n";
    return 2;
  }
  const std::string& input = args[0];
  if (output.empty())
    output = std::filesystem::path(input).filename().replace_extension(".lvl").string();
  const FileRead read = ReadInput(input, true);
  if (!read.bytes) {
    err << CannotRead(input, read) << "\n";
    return 1;
  }
  const ParsedLevel parsed = ParseLevelText(AsText(*read.bytes));
  for (const Diagnostic& d : parsed.diagnostics) err << FormatDiagnostic(input, d) << "\n";
  if (!parsed.ok()) {
    err << input << ": not compiled, " << output << " is left as it was\n";
    return 1;
  }
  for (const std::string& s : SanityProblems(parsed.data, false))
    err << FormatDiagnostic(input, {0, true, s}) << "\n";
  std::string error;
  if (!WriteFileAtomically(output, WriteLevel(parsed.data), error)) {
    err << input << ": error: " << error << "\n";
    return 1;
  }
  out << "compiled " << input << " -> " << output << "\n";
  return 0;
}

int Decompile(std::vector<std::string> args, std::ostream& out, std::ostream& err) {
  std::string output;
  if (!TakeOutput(args, output) || args.size() != 1) {
    err << "usage: quorbit-level decompile LEVEL.lvl [-o LEVEL.txt]\n";
    return 2;
  }
  const std::string& input = args[0];
  const FileRead file = ReadInput(input, false);
  if (!file.bytes) {
    err << CannotRead(input, file) << "\n";
    return 1;
  }
  const LevelRead read = ReadLevel(*file.bytes);
  if (read.status == ReadStatus::Missing) {
    err << input << ": error: This level does not exist! (" << read.problem << ")\n";
    return 1;
  }
  if (read.status == ReadStatus::Unsupported) {
    err << input << ": error: the game cannot play it: " << read.problem << "\n";
    return 1;
  }
  if (!read.shortAt.empty())
    err << input << ": warning: cut short in the " << read.shortAt
        << "; the text holds what the game reads (the rest as 0 or Empty)\n";
  const std::string text = PrintLevelText(read.data);
  // The text must compile back to the same meaning; say so when it cannot.
  const ParsedLevel back = ParseLevelText(text);
  if (!back.ok() || back.data != Normalized(read.data)) {
    std::string why = "it does not read back the same";
    for (const Diagnostic& d : back.diagnostics)
      if (!d.warning) {
        why = d.message;
        break;
      }
    err << input << ": error: this level cannot be written in the text form: " << why << "\n";
    return 1;
  }
  if (output.empty()) {
    out << text;
    return 0;
  }
  std::string error;
  if (!WriteFileAtomically(output, std::vector<uint8_t>(text.begin(), text.end()), error)) {
    err << input << ": error: " << error << "\n";
    return 1;
  }
  return 0;
}

int Check(const std::vector<std::string>& files, std::ostream& out) {
  if (files.empty()) {
    out << "usage: quorbit-level check FILE...\n";
    return 2;
  }
  int failed = 0;
  for (const std::string& file : files) {
    const FileRead read = ReadInput(file, IsText(file));
    if (!read.bytes) {
      out << CannotRead(file, read) << "\n";
      ++failed;
      continue;
    }
    const std::vector<uint8_t>& bytes = *read.bytes;
    const CheckResult r = IsText(file) ? CheckLevelText(AsText(bytes)) : CheckLevelBytes(bytes);
    for (const Diagnostic& d : r.diagnostics) out << FormatDiagnostic(file, d) << "\n";
    if (r.diagnostics.empty()) {
      out << file << ": ok\n";
    } else {
      ++failed;
    }
  }
  if (files.size() > 1)
    out << files.size() - static_cast<std::size_t>(failed) << " of " << files.size()
        << " levels are fine\n";
  return failed == 0 ? 0 : 1;
}

int Table(const std::vector<std::string>& files, std::ostream& out, std::ostream& err) {
  if (files.empty()) {
    err << "usage: quorbit-level table FILE...\n";
    return 2;
  }
  std::vector<LevelData> levels;
  int status = 0;
  for (const std::string& file : files) {
    const FileRead read = ReadInput(file, IsText(file));
    if (!read.bytes) {
      err << CannotRead(file, read) << "\n";
      status = 1;
      continue;
    }
    const std::vector<uint8_t>& bytes = *read.bytes;
    CheckResult r = IsText(file) ? CheckLevelText(AsText(bytes)) : CheckLevelBytes(bytes);
    if (!r.loaded) {
      for (const Diagnostic& d : r.diagnostics)
        if (!d.warning) err << FormatDiagnostic(file, d) << "\n";
      status = 1;
      continue;
    }
    levels.push_back(std::move(r.data));
  }
  std::stable_sort(levels.begin(), levels.end(), [](const LevelData& a, const LevelData& b) {
    return a.Skill != b.Skill ? a.Skill < b.Skill : a.Number < b.Number;
  });
  out << TableHeader();
  for (const LevelData& d : levels) out << TableRow(d);
  return status;
}

}  // namespace qb::leveltext
