// Text from a file, quoted for a message: it cannot act on the terminal or fill the screen.
#include "core/quoted.h"

#include <cstdio>

namespace qb {

std::string Quoted(std::string_view s) {
  constexpr std::size_t kLongest = 60;  // characters shown, an escaped byte counting as four
  std::string out = "\"";
  for (std::size_t i = 0; i < s.size(); ++i) {
    if (out.size() > kLongest) return out + "...\"";
    const auto c = static_cast<unsigned char>(s[i]);
    if (c < 0x20 || c == 0x7F) {
      char hex[8];
      std::snprintf(hex, sizeof hex, "\\x%02X", c);
      out += hex;
    } else {
      out += s[i];
    }
  }
  return out + "\"";
}

}  // namespace qb
