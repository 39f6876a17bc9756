#pragma once

#include <QStringList>

#include <optional>

class QWidget;
struct Programm;

/// Keeps files that are about to be replaced, as far as there are any, and returns the copies' paths. Where one cannot be kept the user is
/// asked whether it may be replaced all the same; nothing: it may not. `gebraucht`, a file that is about to be read, is no copy that could
/// make room for another.
[[nodiscard]] std::optional<QStringList> aufhebenOderFragen(const Programm &programm, QWidget *fenster, const QStringList &pfade,
                                                            const QString &gebraucht = {});
