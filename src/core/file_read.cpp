// Reading a whole file from outside without trusting it.
#include "core/file_read.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace qb {
namespace {

FileRead Failed(std::string why) {
  return {std::nullopt, std::move(why)};
}

std::string TooLarge(std::size_t limit) {
  return "it is larger than " + std::to_string(limit) + " bytes, more than such a file can hold";
}

}  // namespace

FileRead ReadSmallFile(const std::string& path, std::size_t limit) {
  // Non-blocking, so that opening a pipe with no writer returns at once; fstat then refuses it.
  const int fd = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
  if (fd < 0) return Failed(std::string("cannot open it: ") + std::strerror(errno));
  struct Closer {
    int fd;
    ~Closer() { ::close(fd); }
  } closer{fd};
  struct stat info {};
  if (::fstat(fd, &info) != 0)
    return Failed(std::string("cannot read it: ") + std::strerror(errno));
  if (S_ISDIR(info.st_mode)) return Failed("it is a folder, not a file");
  if (!S_ISREG(info.st_mode)) return Failed("it is not a regular file (a device, pipe or socket)");
  if (info.st_size > 0 && static_cast<std::uintmax_t>(info.st_size) > limit)
    return Failed(TooLarge(limit));
  // The size can be wrong (a file still growing, a file of the kernel): read one byte more than
  // allowed to know.
  std::vector<uint8_t> bytes(limit + 1);
  std::size_t got = 0;
  while (got < bytes.size()) {
    const ssize_t n = ::read(fd, bytes.data() + got, bytes.size() - got);
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) return Failed(std::string("cannot read it: ") + std::strerror(errno));
    if (n == 0) break;
    got += static_cast<std::size_t>(n);
  }
  if (got > limit) return Failed(TooLarge(limit));
  bytes.resize(got);
  bytes.shrink_to_fit();
  return {std::move(bytes), {}};
}

}  // namespace qb
