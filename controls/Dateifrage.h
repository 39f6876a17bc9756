#pragma once

#include <QFileDialog>
#include <QUrl>

#include <functional>

/* The question for a file, as the program's texts describe it: "text (*.x)|*.x|...". */

/// First pattern of a filter: "*.x".
QString dateimuster(QStringView filter);

/// Begins in a folder with `name` in its box; a pattern there is the name of no file.
class Dateifrage : public QFileDialog
{
public:
    /// `dazu` is a folder offered beside the usual ones, where there is such a folder.
    Dateifrage(QWidget *eltern, const QString &titel, QStringView filter, const QString &name, const QString &dazu,
               const QString &ordner = QDir::currentPath());

    /// A name without an ending gets that of the filter chosen, before anybody asks whether it may be overwritten.
    void endungDesFilters();

    using Zeigen = std::function<void(QDialog &)>;
    /// The chosen path; empty after a cancel.
    QString fragen(const Zeigen &zeigen = [](QDialog &dialog) { dialog.exec(); });
    void accept() override;

private:
    QUrl dazu_;
};
