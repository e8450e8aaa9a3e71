#pragma once

#include <QString>

/// HTML that a stranger may have had a hand in, as it can be shown: unchanged, but that every "<" stands for itself
/// which does not begin one of the simple tags of running text. What is shown then loads nothing (a picture can be a
/// file without end, or make a name and password known to a server), and is laid out in moderate time and space
/// (tables inside tables double the time with each).
///
/// Simple tags are b, strong, i, em, u, s, code, tt, p, br, a, span, font, h1 to h6, ul, ol and li, with attributes
/// that name an address, a colour, a face, or how bold or slanted a text is; the first hundred of them, and lists
/// inside at most two others.
QString harmlessHtml(const QString &html);

/// The text itself, or as much of its beginning as that many characters and an ellipsis instead of the rest.
QString shortened(const QString &text, int length);
