#include "interfaces/Modal.h"

#include <QDialog>
#include <QFileDialog>
#include <QMessageBox>

namespace {

/// Runs a box that its parent may take along while it is open; the parent would delete a box on
/// the stack as well. 0 when the box went that way.
int runBox(QMessageBox::Icon icon, QWidget *parent, const QString &title, const QString &text,
           QMessageBox::StandardButtons buttons, QMessageBox::StandardButton first)
{
    const QPointer<QMessageBox> box = new QMessageBox(icon, title, text, buttons, parent);
    box->setDefaultButton(first);
    const int answer = box->exec();
    delete box;
    return answer;
}

/// The same for a file dialog; empty when nothing was chosen.
QString runFileDialog(QFileDialog *fileDialog)
{
    const QPointer<QFileDialog> dialog = fileDialog;
    const bool isAccepted = dialog->exec() == QDialog::Accepted;
    const QString file = dialog && isAccepted ? dialog->selectedFiles().value(0) : QString();
    delete dialog;
    return file;
}

ModalPrompt promptOf(ModalPrompt::Kind kind, QWidget *parent, const QString &title,
                     const QString &text)
{
    ModalPrompt prompt;
    prompt.kind = kind;
    prompt.parent = parent;
    prompt.title = title;
    prompt.text = text;
    return prompt;
}

} // namespace

Modal::Modal(QObject *parent) : QObject(parent) {}

Modal *Modal::instance()
{
    static Modal theModal;
    return &theModal;
}

void Modal::setAnswerer(Answerer answerer)
{
    instance()->m_answerer = std::move(answerer);
}

QVariant Modal::ask(const ModalPrompt &prompt, const std::function<QVariant()> &user)
{
    emit opening();
    const Answerer answerer = m_answerer;
    const QVariant answer = answerer ? answerer(prompt) : user();
    emit closed();
    return answer;
}

int Modal::exec(QDialog *dialog)
{
    ModalPrompt prompt =
        promptOf(ModalPrompt::Dialog, dialog->parentWidget(), dialog->windowTitle(), QString());
    prompt.dialog = dialog;
    return instance()->ask(prompt, [dialog] { return dialog->exec(); }).toInt();
}

void Modal::warning(QWidget *parent, const QString &title, const QString &text)
{
    instance()->ask(promptOf(ModalPrompt::Warning, parent, title, text), [&] {
        return runBox(QMessageBox::Warning, parent, title, text, QMessageBox::Ok, QMessageBox::Ok);
    });
}

int Modal::question(QWidget *parent, const QString &title, const QString &text,
                    DefaultAnswer answer)
{
    const auto user = [&] {
        return int(runBox(QMessageBox::Question, parent, title, text,
                          QMessageBox::Yes | QMessageBox::No,
                          answer == Yes ? QMessageBox::Yes : QMessageBox::No) == QMessageBox::Yes);
    };
    return instance()->ask(promptOf(ModalPrompt::Question, parent, title, text), user).toInt();
}

QString Modal::openFileName(QWidget *parent, const QString &title, const QString &dir,
                            const QString &filter)
{
    const auto user = [&] {
        auto *const dialog = new QFileDialog(parent, title, dir, filter);
        dialog->setFileMode(QFileDialog::ExistingFile);
        return runFileDialog(dialog);
    };
    return instance()->ask(promptOf(ModalPrompt::OpenFile, parent, title, filter), user).toString();
}

QString Modal::saveFileName(QWidget *parent, const QString &title, const QString &file,
                            const QString &filter)
{
    const auto user = [&] {
        auto *const dialog = new QFileDialog(parent, title, file, filter);
        dialog->setAcceptMode(QFileDialog::AcceptSave);
        return runFileDialog(dialog);
    };
    return instance()->ask(promptOf(ModalPrompt::SaveFile, parent, title, filter), user).toString();
}

QString Modal::openFolder(QWidget *parent, const QString &title, const QString &dir)
{
    const auto user = [&] {
        auto *const dialog = new QFileDialog(parent, title, dir);
        dialog->setFileMode(QFileDialog::Directory);
        dialog->setOption(QFileDialog::ShowDirsOnly);
        return runFileDialog(dialog);
    };
    return instance()->ask(promptOf(ModalPrompt::OpenFolder, parent, title, {}), user).toString();
}
