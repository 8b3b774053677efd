#include "Conversation.h"

#include "DescriptorMessage.h"
#include "ImageWorkerWire.h"
#include "PhotoConverter.h"
#include "PhotoReader.h"
#include "Thumbnail.h"

#include <sys/resource.h>
#include <sys/socket.h>

namespace imageworker {

namespace {

using namespace imageworkerwire;

// Else the application would refuse what is accepted here.
static_assert(imageworkerwire::MaximumPixels == imageworker::MaximumPixels);

using Asked = DescriptorMessage<Request>;

bool send(int socket, const Reply &reply)
{
    return ::send(socket, &reply, sizeof(reply), MSG_NOSIGNAL) == ssize_t{sizeof(reply)};
}

Outcome outcomeOf(const Result<void> &result)
{
    if (result) {
        return Outcome::Done;
    }
    return result.error() == Fault::CannotWrite ? Outcome::CannotWrite : Outcome::Unreadable;
}

/// The one photo of this process.
class OpenedPhoto
{
public:
    Reply answer(Asked &asked)
    {
        switch (asked.record.kind) {
        case RequestKind::Open:
            return open(std::move(asked.descriptor));
        case RequestKind::Write:
            return write(asked);
        case RequestKind::Thumbnail:
            return thumbnail(asked);
        }
        return {Outcome::Unreadable};
    }

private:
    Reply open(FileDescriptor file)
    {
        m_file = std::move(file);
        m_source = sourceOfFile(m_file.number());
        m_photo = m_source ? readPhoto(*m_source) : unreadable();
        if (!m_photo) {
            return {Outcome::Unreadable};
        }
        const PixelSize size = m_photo->upright().size();
        return {Outcome::Done, size.width, size.height};
    }

    Reply write(const Asked &asked) const
    {
        if (!m_photo) {
            return {Outcome::Unreadable};
        }
        const CopyFormat format = asked.record.format == Format::Png ? CopyFormat::Png : CopyFormat::Jpeg;
        return {outcomeOf(
            writeCopy(*m_source, *m_photo, asked.descriptor.number(), format, asked.record.jpegQuality))};
    }

    Reply thumbnail(const Asked &asked) const
    {
        constexpr int LeastUrgent = 19;
        ::setpriority(PRIO_PROCESS, 0, LeastUrgent); // nobody waits for it; conversions come first
        return {m_photo ? outcomeOf(writeThumbnail(*m_source, *m_photo, asked.descriptor.number(),
                                                   asked.record.maximumSide))
                        : Outcome::Unreadable};
    }

    FileDescriptor m_file;
    std::unique_ptr<Source> m_source;
    Result<Photo> m_photo = unreadable();
};

} // namespace

void converse(int socket, Rights rights)
{
    const Outcome greeting = rights == Rights::GivenUp ? Outcome::Done : Outcome::NotLockedDown;
    if (!send(socket, {greeting}) || rights == Rights::Kept) {
        return;
    }
    OpenedPhoto photo;
    while (auto asked = receiveWithDescriptor<Request>(socket)) {
        if (!send(socket, photo.answer(*asked))) {
            return;
        }
    }
}

} // namespace imageworker
