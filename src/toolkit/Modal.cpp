#include "interfaces/Modal.h"

#include <QDialog>
#include <QFileDialog>
#include <QMessageBox>

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
    ModalPrompt prompt;
    prompt.kind = ModalPrompt::Dialog;
    prompt.parent = dialog->parentWidget();
    prompt.title = dialog->windowTitle();
    prompt.dialog = dialog;
    return instance()->ask(prompt, [dialog] { return dialog->exec(); }).toInt();
}

void Modal::warning(QWidget *parent, const QString &title, const QString &text)
{
    ModalPrompt prompt;
    prompt.kind = ModalPrompt::Warning;
    prompt.parent = parent;
    prompt.title = title;
    prompt.text = text;
    instance()->ask(prompt, [&] { return int(QMessageBox::warning(parent, title, text)); });
}

int Modal::question(QWidget *parent, const QString &title, const QString &text)
{
    ModalPrompt prompt;
    prompt.kind = ModalPrompt::Question;
    prompt.parent = parent;
    prompt.title = title;
    prompt.text = text;
    const auto user = [&] {
        return int(QMessageBox::question(parent, title, text) == QMessageBox::Yes);
    };
    return instance()->ask(prompt, user).toInt();
}

QString Modal::openFileName(QWidget *parent, const QString &title, const QString &dir,
                            const QString &filter)
{
    ModalPrompt prompt;
    prompt.kind = ModalPrompt::OpenFile;
    prompt.parent = parent;
    prompt.title = title;
    prompt.text = filter;
    const auto user = [&] {
        return QFileDialog::getOpenFileName(parent, title, dir, filter);
    };
    return instance()->ask(prompt, user).toString();
}

QString Modal::saveFileName(QWidget *parent, const QString &title, const QString &file,
                            const QString &filter)
{
    ModalPrompt prompt;
    prompt.kind = ModalPrompt::SaveFile;
    prompt.parent = parent;
    prompt.title = title;
    prompt.text = filter;
    const auto user = [&] {
        return QFileDialog::getSaveFileName(parent, title, file, filter);
    };
    return instance()->ask(prompt, user).toString();
}
