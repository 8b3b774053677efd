#include "DefaultsStore.h"

#include <QSettings>
#include <QStandardPaths>

namespace {

class SettingsFile : public DefaultsStore
{
public:
    explicit SettingsFile(const QString &path)
        : m_settings(path, QSettings::IniFormat)
    {}

    std::optional<QString> text(const QString &key) const override
    {
        const QVariant value = m_settings.value(key);
        return value.typeId() == QMetaType::QString ? std::optional(value.toString()) : std::nullopt;
    }

    std::optional<QByteArray> data(const QString &key) const override
    {
        const QVariant value = m_settings.value(key);
        return value.typeId() == QMetaType::QByteArray ? std::optional(value.toByteArray()) : std::nullopt;
    }

    std::optional<bool> boolean(const QString &key) const override
    {
        // A Boolean is stored as one of these words.
        const QString word = m_settings.value(key).toString();
        if (word == QLatin1String("true")) {
            return true;
        }
        return word == QLatin1String("false") ? std::optional(false) : std::nullopt;
    }

    void store(const QString &key, const QString &text) override { storeVariant(key, text); }
    void store(const QString &key, const QByteArray &data) override { storeVariant(key, data); }
    void store(const QString &key, bool value) override { storeVariant(key, value); }

private:
    void storeVariant(const QString &key, const QVariant &value)
    {
        // After a write that failed the file may hold less than the memory does.
        if (m_settings.status() == QSettings::NoError && m_settings.value(key) == value) {
            return;
        }
        m_settings.setValue(key, value);
        m_settings.sync();
    }

    QSettings m_settings;
};

} // namespace

std::unique_ptr<DefaultsStore> DefaultsStore::inFile(const QString &path)
{
    return std::make_unique<SettingsFile>(path);
}

std::unique_ptr<DefaultsStore> DefaultsStore::standard()
{
    return inFile(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                  QStringLiteral("/lumaport/lumaport.conf"));
}
