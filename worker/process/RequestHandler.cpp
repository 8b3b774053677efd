#include "RequestHandler.h"

#include "DescriptorMessage.h"
#include "ImageWorkerWire.h"
#include "LockDown.h"
#include "MemoryNeed.h"
#include "PhotoConverter.h"
#include "PhotoReader.h"
#include "Thumbnail.h"

#include <sys/resource.h>
#include <sys/socket.h>

namespace imageworker {

namespace {

using namespace imageworkerwire;

Reply replyFor(const Result<void> &result)
{
    return {result ? NoFault : result.error()};
}

/// The one photo of this process.
class OpenedPhoto
{
public:
    Reply answer(DescriptorMessage<Request> &message)
    {
        const Request &request = message.record;
        if (request.kind == RequestKind::Open) {
            return open(std::move(message.descriptor));
        }
        if (!m_photo) {
            return {ImageWorkerFault::Unreadable};
        }
        const int output = message.descriptor.number();
        if (request.kind == RequestKind::Write) {
            return replyFor(writeCopy(*m_source, *m_photo, output, request.format, request.jpegQuality));
        }
        constexpr int Utility = 5; // gives way, and still comes within reasonable time on a busy machine
        ::setpriority(PRIO_PROCESS, 0, Utility);
        const auto size = writeThumbnail(*m_source, *m_photo, output, request.maximumSide);
        return size ? Reply{NoFault, size->width, size->height} : Reply{size.error()};
    }

private:
    Reply open(FileDescriptor file)
    {
        m_file = std::move(file);
        m_source = sourceOfFile(m_file.number());
        m_photo = m_source ? readPhoto(*m_source) : unreadable();
        if (!m_photo) {
            return {ImageWorkerFault::Unreadable};
        }
        limitMemory(memoryNeeded(*m_photo, m_source->size()));
        const PixelSize size = m_photo->transformation().size();
        return {NoFault, size.width, size.height};
    }

    FileDescriptor m_file;
    std::unique_ptr<Source> m_source;
    Result<Photo> m_photo = unreadable();
};

} // namespace

void handleRequests(int socket)
{
    OpenedPhoto photo;
    while (auto message = receiveWithDescriptor<Request>(socket)) {
        const Reply reply = photo.answer(*message);
        if (::send(socket, &reply, sizeof(reply), MSG_NOSIGNAL) != ssize_t{sizeof(reply)}) {
            return;
        }
    }
}

} // namespace imageworker
