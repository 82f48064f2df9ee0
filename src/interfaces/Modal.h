#pragma once

#include "interfaces/VantrixExport.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QVariant>
#include <QWidget>

#include <functional>

class QDialog;

/// What a modal thing asks. `dialog` is set for `exec` only; the rest is what was passed.
struct VANTRIX_EXPORT ModalPrompt
{
    enum Kind { Warning, Question, OpenFile, SaveFile, OpenFolder, Dialog };

    Kind kind = Dialog;
    QPointer<QWidget> parent;
    QString title;
    QString text; ///< message, or the filter of a file dialog; empty for a folder
    QPointer<QDialog> dialog;
};

/// The one place through which everything modal runs: message boxes, file dialogs, `exec()` of
/// dialogs. A test puts an answer here and reads what was asked; whoever holds the keyboard lets
/// go of it between `opening` and `closed`. Interface thread only.
class VANTRIX_EXPORT Modal : public QObject
{
    Q_OBJECT

public:
    /// Answers a prompt in place of the user: an int for messages and dialogs, a text for files.
    using Answerer = std::function<QVariant(const ModalPrompt &)>;

    /// Whose signals to connect to; lives until the program ends.
    static Modal *instance();

    /// Puts `answerer` in the user's place until null is set. The signals are emitted all the same.
    static void setAnswerer(Answerer answerer);

    /// Runs `dialog.exec()`. The dialog may be destroyed meanwhile by its parent; then the result
    /// is that of a rejected dialog.
    static int exec(QDialog *dialog);
    /// Shows a box with one button.
    static void warning(QWidget *parent, const QString &title, const QString &text);
    /// What Enter answers to a question.
    enum DefaultAnswer { Yes, No };
    /// Asks yes or no; 1 for yes, 0 for no.
    static int question(QWidget *parent, const QString &title, const QString &text,
                        DefaultAnswer answer = Yes);
    /// Asks for a file that exists; empty if the user thought better of it.
    static QString openFileName(QWidget *parent, const QString &title, const QString &dir,
                                const QString &filter);
    /// Asks where to write a file, starting from `file`; empty if the user thought better of it.
    static QString saveFileName(QWidget *parent, const QString &title, const QString &file,
                                const QString &filter);
    /// Asks for a folder that exists, starting in `dir`; empty if the user thought better of it.
    static QString openFolder(QWidget *parent, const QString &title, const QString &dir);

signals:
    /// Right before a modal thing is shown, and right after the user has answered it. They nest:
    /// one may open over another, so count them.
    void opening();
    void closed();

private:
    explicit Modal(QObject *parent = nullptr);
    QVariant ask(const ModalPrompt &prompt, const std::function<QVariant()> &user);

    Answerer m_answerer;
};
