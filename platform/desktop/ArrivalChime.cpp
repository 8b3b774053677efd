#include "ArrivalChime.h"

#include "ShippedFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QStandardPaths>

#include <atomic>
#include <canberra.h>

namespace {

/// A sound server or a sound card. Without either the sound library would complain on standard error.
bool hasAudio()
{
    const QString runtimeFolder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    return qEnvironmentVariableIsSet("PULSE_SERVER") ||
           QFile::exists(runtimeFolder + QStringLiteral("/pulse/native")) ||
           QFile::exists(QStringLiteral("/dev/snd/controlC0"));
}

class CanberraChime : public ArrivalChime
{
public:
    void play(const QString &soundName) override
    {
        const QString path = shippedFile(soundName);
        if (m_isPlaying || path.isEmpty() || !hasAudio() || !isOpen()) {
            return;
        }
        ca_proplist *properties = nullptr;
        if (ca_proplist_create(&properties) != CA_SUCCESS) {
            return;
        }
        ca_proplist_sets(properties, CA_PROP_MEDIA_FILENAME, QFile::encodeName(path).constData());
        ca_proplist_sets(properties, CA_PROP_MEDIA_ROLE, "event");
        ca_proplist_sets(properties, CA_PROP_EVENT_ID, "complete-transfer");
        // The end is reported, on a thread of the library, for every sound that started.
        m_isPlaying = true;
        const auto ended = [](ca_context *, std::uint32_t, int, void *isPlaying) {
            *static_cast<std::atomic<bool> *>(isPlaying) = false;
        };
        if (ca_context_play_full(m_context, 0, properties, ended, &m_isPlaying) != CA_SUCCESS) {
            m_isPlaying = false;
        }
        ca_proplist_destroy(properties);
    }

    CanberraChime() = default;
    ~CanberraChime() override
    {
        if (m_context != nullptr) {
            ca_context_destroy(m_context);
        }
    }
    Q_DISABLE_COPY_MOVE(CanberraChime)

private:
    bool isOpen()
    {
        if (m_context == nullptr && ca_context_create(&m_context) == CA_SUCCESS) {
            ca_context_change_props(m_context, CA_PROP_APPLICATION_NAME, "Lumaport", CA_PROP_APPLICATION_ID,
                                    "io.lumaport.Lumaport", nullptr);
        }
        return m_context != nullptr;
    }

    ca_context *m_context = nullptr;
    std::atomic<bool> m_isPlaying = false;
};

} // namespace

std::shared_ptr<ArrivalChime> ArrivalChime::create()
{
    return std::make_shared<CanberraChime>();
}
