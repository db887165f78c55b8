// Reports each kind of audio problem once on the error stream, however often it recurs.
#pragma once

#include <ostream>
#include <set>
#include <string>

namespace qb {

class ProblemLog {
 public:
  explicit ProblemLog(std::ostream& out) : out_(out) {}
  // Writes "quorbit2: <text>" the first time `kind` is reported; later reports are dropped, so
  // a timer that retries every half second does not flood the terminal.
  void Report(const std::string& kind, const std::string& text) {
    if (reported_.insert(kind).second) out_ << "quorbit2: " << text << std::endl;
  }
  bool Reported(const std::string& kind) const { return reported_.count(kind) > 0; }

 private:
  std::ostream& out_;
  std::set<std::string> reported_;
};

}  // namespace qb
