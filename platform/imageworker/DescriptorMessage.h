#pragma once

#include "FileDescriptor.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <optional>
#include <sys/socket.h>

/// A record received with an open descriptor, over a socket that keeps records apart (SOCK_SEQPACKET).
template<typename Record>
struct DescriptorMessage
{
    Record record = {};
    FileDescriptor descriptor;
};

/// Sends `record` with a copy of `descriptor`; false when the other end is closed.
template<typename Record>
bool sendWithDescriptor(int socket, const Record &record, int descriptor)
{
    alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof(int))> control = {};
    iovec part = {const_cast<Record *>(&record), sizeof(record)};
    msghdr message = {};
    message.msg_iov = &part;
    message.msg_iovlen = 1;
    message.msg_control = control.data();
    message.msg_controllen = control.size();
    cmsghdr *header = CMSG_FIRSTHDR(&message);
    header->cmsg_level = SOL_SOCKET;
    header->cmsg_type = SCM_RIGHTS;
    header->cmsg_len = CMSG_LEN(sizeof(int));
    std::memcpy(CMSG_DATA(header), &descriptor, sizeof(descriptor));
    ssize_t sent = 0;
    do {
        sent = ::sendmsg(socket, &message, MSG_NOSIGNAL);
    } while (sent < 0 && errno == EINTR);
    return sent == ssize_t{sizeof(record)};
}

/// Waits for a message; nothing when the other end is closed or has sent anything else.
template<typename Record>
std::optional<DescriptorMessage<Record>> receiveWithDescriptor(int socket)
{
    DescriptorMessage<Record> received;
    alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof(int))> control = {};
    iovec part = {&received.record, sizeof(received.record)};
    msghdr message = {};
    message.msg_iov = &part;
    message.msg_iovlen = 1;
    message.msg_control = control.data();
    message.msg_controllen = control.size();
    ssize_t count = 0;
    do {
        count = ::recvmsg(socket, &message, MSG_CMSG_CLOEXEC);
    } while (count < 0 && errno == EINTR);
    const cmsghdr *header = CMSG_FIRSTHDR(&message);
    if (count != ssize_t{sizeof(Record)} || header == nullptr || header->cmsg_type != SCM_RIGHTS) {
        return std::nullopt;
    }
    int descriptor = -1;
    std::memcpy(&descriptor, CMSG_DATA(header), sizeof(descriptor));
    received.descriptor = FileDescriptor(descriptor);
    return received;
}
