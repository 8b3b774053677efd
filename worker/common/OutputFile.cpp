#include "OutputFile.h"

#include <cerrno>
#include <unistd.h>

namespace imageworker {

bool OutputFile::write(std::span<const std::uint8_t> bytes)
{
    while (!bytes.empty() && !m_failed) {
        const ssize_t count = ::write(m_descriptor, bytes.data(), bytes.size());
        if (count > 0) {
            bytes = bytes.subspan(static_cast<std::size_t>(count));
        } else if (count == 0 || errno != EINTR) {
            m_failed = true;
        }
    }
    return !m_failed;
}

} // namespace imageworker
