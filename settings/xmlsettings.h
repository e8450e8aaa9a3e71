#pragma once

#include <QDomDocument>
#include <QMap>
#include <QRecursiveMutex>
#include <QString>
#include <QVariant>

/// Settings kept in memory as an XML tree, read from and written to one small file.
///
/// A setting is named by a path: "Window/StayOnTop" is the element StayOnTop inside the element Window inside the root
/// element Settings. Its value is the element's first text, in the form QVariant gives it. An element may carry an
/// attribute "id" to tell it from others of its name; it is invisible to a read without an id.
///
/// No failure reaches the caller: what cannot be read counts as not there, and what cannot be saved is reported on the
/// debug stream and stays in memory. value(), setValue(), load() and save() may be called from any thread.
class XmlSettings
{
public:
    /// Starts with an empty tree and setProfile(profileName).
    explicit XmlSettings(const QString &profileName);
    virtual ~XmlSettings();

    /// Points at the file "config/<name>.xml" below the current directory and makes the folder. Reads nothing.
    void setProfile(const QString &name);

    /// Replaces the tree by that of the file, if the file has one; see readSettings().
    void load();

    /// Writes the whole tree. The file is replaced as a whole or not at all.
    void save();

    /// The text of a setting as a string variant, or `defaultValue` when there is none.
    QVariant value(const QString &name, const QVariant &defaultValue, const QString &id = QString());
    QVariant value(qint32 key, const QVariant &defaultValue, const QString &id = QString());

    /// Sets a setting, making the elements that it needs. An id that no element of this path has re-labels the first
    /// one and overwrites its value. Characters that XML cannot hold are left out, and a path that needs an element
    /// whose tag XML cannot hold is not set. Nothing reaches the file before save().
    void setValue(const QString &name, const QVariant &value, const QString &id = QString());

    /// The path of a key. A key without one is given an empty path.
    QString keyName(qint32 key);

private:
    Q_DISABLE_COPY(XmlSettings)

protected:
    QMap<qint32, QString> keyNames; ///< for derived classes to fill

private:
    QDomDocument document; ///< always the XML declaration, then root
    QDomElement root;
    QString filePath;
    QString extension;
    QRecursiveMutex mutex;
};
