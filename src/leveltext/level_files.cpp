// Writing files so that a failed write leaves nothing behind.
#include "leveltext/level_files.h"

#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>

namespace qb::leveltext {

bool WriteFileAtomically(const std::string& path, const std::vector<uint8_t>& bytes,
                         std::string& error) {
  const std::string temp = path + ".tmp" + std::to_string(::getpid());
  {
    std::ofstream out(temp, std::ios::binary | std::ios::trunc);
    if (!out) {
      error = "cannot write " + path + ": " + std::strerror(errno);
      return false;
    }
    out.write(reinterpret_cast<const char*>(bytes.data()),
              static_cast<std::streamsize>(bytes.size()));
    out.close();
    if (!out) {
      error = "cannot write " + path;
      std::remove(temp.c_str());
      return false;
    }
  }
  if (std::rename(temp.c_str(), path.c_str()) != 0) {
    error = "cannot write " + path + ": " + std::strerror(errno);
    std::remove(temp.c_str());
    return false;
  }
  return true;
}

}  // namespace qb::leveltext
