#pragma once

#include <QByteArrayView>
#include <QString>

#include <optional>
#include <vector>

/* Rich text as the hints use it: bold, italic, paragraphs, line breaks and tabs, characters by their code. Everything else in a
   file is passed over, destinations such as fonts, styles and pictures whole. */

/// A piece of text in one style; a line break inside a paragraph is QChar::LineSeparator.
struct Rtflauf
{
    QString text;
    bool fett = false;
    bool kursiv = false;

    bool operator==(const Rtflauf &) const = default;
};

using Rtfabsatz = std::vector<Rtflauf>;

/// The paragraphs of a file, empty ones too; nothing for bytes that are no rich text. A file that breaks off gives what stands before
/// the break. Characters by code are those of code page 1252.
std::optional<std::vector<Rtfabsatz>> rtfLesen(QByteArrayView bytes);
