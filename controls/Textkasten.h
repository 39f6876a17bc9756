#pragma once

#include <QPlainTextEdit>

/* A scrolling text box that stays quick with any text: a line too long to be laid out is shown as several,
   many short ones are laid out together, and the text is given back as it was. */
class Textkasten : public QPlainTextEdit
{
    Q_OBJECT
    Q_PROPERTY(QString plainText READ text WRITE setText)

public:
    explicit Textkasten(QWidget *eltern = nullptr);

    /// Can be read, selected and copied, not changed.
    void setNurLesen();
    void setText(const QString &text);
    /// The text with its own line ends only.
    QString text() const;
    /// Height in pixels at which a text of usual length needs no scroll bar; a longer one asks for no more.
    int texthoehe(int breite) const;
    QSize minimumSizeHint() const override;
    QSize sizeHint() const override { return minimumSizeHint(); }

private:
    QString gesetzt_;        ///< what was set last
    bool geaendert_ = false; ///< somebody else has changed it since
    bool geteilt_ = false;   ///< its blocks are not the lines of the text
};

inline constexpr int laengsteZeile = 4000; ///< characters of one line that are laid out together
