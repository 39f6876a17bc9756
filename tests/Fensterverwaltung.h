#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

/* A screen with a window manager of the test's own: who is active, and where frames stand, is decided there and nowhere else. */
class Fensterverwaltung
{
public:
    /// Starts both; the application that is made next uses them.
    explicit Fensterverwaltung(const QString &schirm = QStringLiteral("1366x768"));
    /// Ends both. The application must be gone.
    ~Fensterverwaltung();

    /// What keeps the tests from running; empty: nothing. Only programs that are not installed do; all else fails.
    const QString &fehlt() const { return fehlt_; }

private:
    QTemporaryDir ordner_;
    QProcess schirm_, verwalter_;
    QString fehlt_;
};
