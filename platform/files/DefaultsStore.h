#pragma once

#include <QByteArray>
#include <QString>

#include <memory>
#include <optional>

/// The user's stored values. Each store is on disk when the call returns; what cannot be read back is absent.
class DefaultsStore
{
public:
    virtual ~DefaultsStore() = default;

    virtual std::optional<QString> text(const QString &key) const = 0;
    virtual std::optional<QByteArray> data(const QString &key) const = 0;
    virtual std::optional<bool> boolean(const QString &key) const = 0;

    virtual void store(const QString &key, const QString &text) = 0;
    virtual void store(const QString &key, const QByteArray &data) = 0;
    virtual void store(const QString &key, bool value) = 0;

    /// A store in one file, which each change replaces as a whole: it holds the old values or the new ones,
    /// whenever the process ends.
    static std::unique_ptr<DefaultsStore> inFile(const QString &path);
    /// The user's own: `lumaport/lumaport.conf` in the configuration folder.
    static std::unique_ptr<DefaultsStore> standard();
};
