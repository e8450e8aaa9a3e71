#pragma once

#include <QMessageBox>
#include <QString>

/// A message box of a command-line run: no parent, one OK button.
struct Notice
{
    QMessageBox::Icon icon;
    QString title;
    QString text;
    Qt::TextFormat format;
    QString plainText; ///< what stands for `text` where no box can be seen
};

/// Shows the box and returns when it is closed. Where nobody could see it, a box would hold a script up for ever: then
/// the plain text goes to standard error instead, at once.
void show(const Notice &notice);

/// Writes one line of text to standard error, in the encoding of the environment.
void writeToStandardError(const QString &text);
