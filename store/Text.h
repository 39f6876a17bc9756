#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>
#include <optional>
#include <string_view>

/* Text helpers that every room uses. */

/// Every occurrence of `von` replaced by `nach`, case-sensitive, left to right; replaced text is not searched again.
QString ErsetzeAlle(const QString &text, const QString &von, const QString &nach);
/// First occurrence of `von` overwritten in place: blanked at its length, then `nach` written there as far as it fits.
QString ErsetzeErstes(const QString &text, const QString &von, const QString &nach);
/// Decimal separator of the program's locale, taken from 5 / 2 as text.
QString DezimalZeichen();

/// True, Wahr (any case) or a number other than 0.
bool istWahr(QStringView text);
/// Benu_Aenderung: 2, -1 and True mean changed by the user; empty, 0, 1 and False mean original.
bool istGeaendert(QStringView text);
/// A number written with comma or point; nothing where the text is none.
std::optional<double> zahlLesen(QStringView text);
/// The same for a stored value as UTF-8; quick where it is written plainly.
std::optional<double> zahlLesen(std::string_view utf8);
/// A stored number as it is shown: decimal comma, no trailing zeros. Text that is no number comes back unchanged.
QString zahlZeigen(const QString &text);
/// A number as the runtime writes one of single precision: seven digits, decimal comma, no trailing zeros.
QString einfachGenau(double zahl);
/// Upper case, character by character: the length never changes (ß stays ß).
QString grossbuchstaben(QStringView text);
/// Whether position `p`, counted from 1, of a flag string holds "1"; false beyond its end.
bool flagGesetzt(QStringView flags, int p);
/// Caption of a month label, i counted from 0: a letter or a number.
QString monatsbeschriftung(int i, bool buchstaben);
/// Home region with its abbreviations written out.
QString herkunftAusgeschrieben(const QString &hk);
/// Work that a nomenclature letter out of `buchstaben` stands for; empty for any other.
QStringView nomenklaturwerk(QStringView quelle, QStringView buchstaben);
/// Sentence for a nomenclature letter out of `buchstaben` (tested in that order); empty for any other.
QString nomenklatur(QStringView quelle, QStringView buchstaben);
/// Running text without the editor's line marks (the character pair 236, 10).
QString ohneZeilenmarken(const QString &text);
/// Code page 1252, as text files of the program are written; what does not fit becomes "?".
QByteArray nachCp1252(const QString &text);
QString ausCp1252(const QByteArray &bytes);
