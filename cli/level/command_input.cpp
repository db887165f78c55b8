// What the analysis subcommands of quorbit-level read: their options and a solution file.
#include "command_input.h"

#include <cmath>
#include <ostream>
#include <sstream>

#include "core/file_read.h"
#include "play/replay.h"

namespace qb::leveltext {

bool TakeValue(std::vector<std::string>& args, const std::string& name, std::string& value) {
  for (std::size_t i = 0; i < args.size(); ++i)
    if (args[i] == name) {
      if (i + 1 >= args.size()) return false;
      value = args[i + 1];
      args.erase(args.begin() + static_cast<std::ptrdiff_t>(i),
                 args.begin() + static_cast<std::ptrdiff_t>(i) + 2);
      return true;
    }
  return true;
}

bool TakeFlag(std::vector<std::string>& args, const std::string& name) {
  for (std::size_t i = 0; i < args.size(); ++i)
    if (args[i] == name) {
      args.erase(args.begin() + static_cast<std::ptrdiff_t>(i));
      return true;
    }
  return false;
}

std::optional<double> Number(const std::string& text, double low, double high) {
  std::istringstream in(text);
  double v = 0;
  if (!(in >> v) || !in.eof() || !std::isfinite(v) || v < low || v > high) return std::nullopt;
  return v;
}

std::optional<qb::analysis::Presses> ReadSolution(const std::string& path, std::ostream& err) {
  const FileRead text = ReadSmallFile(path, kMaxTextFileBytes);
  if (!text.bytes) {
    err << path << ": error: cannot read the file: " << text.error << "\n";
    return std::nullopt;
  }
  const ReplayFile replay = ParseReplay(std::string(text.bytes->begin(), text.bytes->end()));
  if (!replay.error.empty()) {
    err << path << ": error: " << replay.error << "\n";
    return std::nullopt;
  }
  return qb::analysis::PressesOf(replay.slots);
}

}  // namespace qb::leveltext
