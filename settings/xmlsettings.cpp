#include "settings/xmlsettings.h"

#include "settings/replacefile.h"
#include "settings/settingsreader.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QMutexLocker>
#include <QStringList>

#include <algorithm>
#include <iterator>

namespace {

const QString idAttribute = QStringLiteral("id");

QStringList pathOf(const QString &name)
{
    return name.split(QLatin1Char('/'));
}

// The first with this id among `element` and what follows it, whatever its tag, up to the first node that is no
// element; a null element if there is none.
QDomElement siblingWithId(const QDomElement &element, const QString &id)
{
    for (QDomElement sibling = element; !sibling.isNull(); sibling = sibling.nextSibling().toElement()) {
        if (sibling.attribute(idAttribute) == id)
            return sibling;
    }
    return {};
}

QDomNode firstText(const QDomElement &element)
{
    QDomNode child = element.firstChild();
    while (!child.isNull() && !child.isText())
        child = child.nextSibling();
    return child;
}

// What the document would write and no reader could read again, for the next start to find nothing: a tag that is no
// name, and a character that XML does not have.
bool canBeTag(const QString &part)
{
    const auto isNameCharacter = [](QChar character) {
        return character.isLetterOrNumber() || QStringLiteral("_-.").contains(character);
    };
    return !part.isEmpty() && (part.at(0).isLetter() || part.at(0) == QLatin1Char('_')) &&
           std::all_of(part.begin(), part.end(), isNameCharacter);
}

// XML 1.0 has no way to write most control characters and U+FFFE and U+FFFF.
bool isForbidden(QChar c)
{
    return (c.unicode() < 0x20 && c != QLatin1Char('\t') && c != QLatin1Char('\n') && c != QLatin1Char('\r')) ||
           c.unicode() > 0xfffd;
}

QString withoutForbiddenCharacters(const QString &text)
{
    QString allowed;
    std::remove_copy_if(text.begin(), text.end(), std::back_inserter(allowed), isForbidden);
    return allowed;
}

} // namespace

XmlSettings::XmlSettings(const QString &profileName)
    : extension(QStringLiteral(".xml"))
{
    document.appendChild(document.createProcessingInstruction(QStringLiteral("xml"),
                                                              QStringLiteral("version=\"1.0\" encoding=\"utf-8\"")));
    root = document.createElement(settingsTag);
    document.appendChild(root);
    setProfile(profileName);
}

XmlSettings::~XmlSettings() = default;

void XmlSettings::setProfile(const QString &name)
{
    const QString folder = QStringLiteral("config");
    if (!QDir(folder).exists())
        QDir().mkpath(folder);
    filePath = QDir::currentPath() + QLatin1Char('/') + folder + QLatin1Char('/') + name + extension;
}

void XmlSettings::load()
{
    const QMutexLocker locker(&mutex);
    const QDomElement settings = readSettings(settingsFileContent(filePath));
    if (settings.isNull())
        return;
    // Only the element moves; the declaration stays the store's own.
    const QDomElement adopted = document.importNode(settings, true).toElement();
    document.replaceChild(adopted, root);
    root = adopted;
}

void XmlSettings::save()
{
    const QMutexLocker locker(&mutex);
    root.setAttribute(QStringLiteral("version"), QCoreApplication::applicationVersion());
    switch (replaceFile(filePath, document.toString(2).toUtf8())) {
    case ReplaceResult::Replaced:
        break;
    case ReplaceResult::NotOpened:
        qDebug().noquote().nospace() << "could not save: " << filePath;
        break;
    case ReplaceResult::NotWritten:
        qDebug().noquote().nospace() << "could not save all data in: " << filePath;
        break;
    }
}

QVariant XmlSettings::value(const QString &name, const QVariant &defaultValue, const QString &id)
{
    const QMutexLocker locker(&mutex);
    QDomElement element = root;
    const QStringList path = pathOf(name);
    for (const QString &part : path) {
        element = element.firstChildElement(part);
        if (element.isNull())
            return defaultValue;
    }

    if (!id.isEmpty())
        element = siblingWithId(element, id);
    else if (element.hasAttribute(idAttribute))
        return defaultValue; // visible only to those who name its id; this is meant

    const QDomNode text = firstText(element);
    return text.isNull() ? defaultValue : QVariant(text.nodeValue());
}

QVariant XmlSettings::value(qint32 key, const QVariant &defaultValue, const QString &id)
{
    const QMutexLocker locker(&mutex);
    return value(keyName(key), defaultValue, id);
}

void XmlSettings::setValue(const QString &name, const QVariant &value, const QString &id)
{
    const QMutexLocker locker(&mutex);
    QDomElement element = root;
    const QStringList path = pathOf(name);
    for (const QString &part : path) {
        QDomElement child = element.firstChildElement(part);
        if (child.isNull()) {
            if (!canBeTag(part))
                return;
            child = document.createElement(part);
            element.appendChild(child);
        }
        element = child;
    }

    // Where nothing has this id, the first element is re-labelled: a new id takes over, it does not add. This is meant.
    const QDomElement labelled = id.isEmpty() ? QDomElement() : siblingWithId(element, id);
    if (!labelled.isNull())
        element = labelled;

    for (QDomNode text = firstText(element); !text.isNull(); text = firstText(element))
        element.removeChild(text);
    if (!id.isEmpty())
        element.setAttribute(idAttribute, id);
    element.appendChild(document.createTextNode(withoutForbiddenCharacters(value.toString())));
}

QString XmlSettings::keyName(qint32 key)
{
    return keyNames[key]; // puts an empty name where there is none; this is meant
}
