#pragma once

#include <QByteArray>
#include <QTranslator>

/// A translator whose catalogue is held in memory, so that nobody can change it under the program.
class Catalogue final : public QTranslator
{
    Q_OBJECT

public:
    using QTranslator::QTranslator;

    /// Takes the place of whatever was loaded before. Returns whether the file is a catalogue (see isSoundCatalogue());
    /// if not, the translator is empty afterwards.
    bool loadFile(const QString &fileName);

private:
    QByteArray bytes;
};
