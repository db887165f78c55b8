// Program faults: a bad index or an overflowing counter stops the event that caused it.
#pragma once

#include <stdexcept>
#include <string>

namespace qb {

// Any fault of the rules. The window catches it at the boundary of the event (a tick, a key, a
// menu command), stops the game timer and reports the message.
class ProgramFault : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// An index outside a table's bounds. Never clamped, never wrapped.
class RangeFault : public ProgramFault {
 public:
  RangeFault(const std::string& table, const std::string& index)
      : ProgramFault("index out of range: " + table + "(" + index + ")") {}
};

// A 16-bit field that would leave -32768..32767.
class OverflowFault : public ProgramFault {
 public:
  explicit OverflowFault(const std::string& what) : ProgramFault("overflow: " + what) {}
};

}  // namespace qb
