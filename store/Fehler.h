#pragma once

#include <QString>
#include <exception>

/* A broken environment (file, database, setting) as an exception with a German text for the user. It is caught once, at the
   event handler, which shows the text and goes on. */
class Fehler : public std::exception
{
public:
    explicit Fehler(QString text) : text_(std::move(text)), utf8_(text_.toUtf8()) {}
    const QString &text() const { return text_; }
    const char *what() const noexcept override { return utf8_.constData(); }

private:
    QString text_;
    QByteArray utf8_;
};
