#include "prompter.h"

#include <QMessageBox>

#include <stdexcept>

namespace {

Prompter *installed = nullptr;

} // namespace

Prompter &Prompter::current()
{
    static MessageBoxPrompter application;
    return installed ? *installed : application;
}

void Prompter::install(Prompter *prompter)
{
    installed = prompter;
}

QString Prompter::buttonsName(Buttons buttons)
{
    switch (buttons) {
    case Buttons::Ok: return QStringLiteral("OK");
    case Buttons::YesNo: return QStringLiteral("YesNo");
    case Buttons::YesNoCancel: return QStringLiteral("YesNoCancel");
    case Buttons::OkCancel: return QStringLiteral("OKCancel");
    }
    return {};
}

QString Prompter::iconName(Icon icon)
{
    switch (icon) {
    case Icon::Information: return QStringLiteral("Information");
    case Icon::Question: return QStringLiteral("Question");
    case Icon::Warning: return QStringLiteral("Warning");
    case Icon::Critical: return QStringLiteral("Critical");
    }
    return {};
}

QString Prompter::answerName(Answer answer)
{
    switch (answer) {
    case Answer::Ok: return QStringLiteral("OK");
    case Answer::Yes: return QStringLiteral("Yes");
    case Answer::No: return QStringLiteral("No");
    case Answer::Cancel: return QStringLiteral("Cancel");
    }
    return {};
}

Prompter::Answer Prompter::answerFromName(const QString &name)
{
    for (Answer a : {Answer::Ok, Answer::Yes, Answer::No, Answer::Cancel}) {
        if (answerName(a).compare(name, Qt::CaseInsensitive) == 0)
            return a;
    }
    throw std::invalid_argument("unknown answer: " + name.toStdString());
}

Prompter::Answer MessageBoxPrompter::ask(const Message &message)
{
    QMessageBox box;
    box.setWindowTitle(message.caption);
    box.setText(message.text);
    switch (message.icon) {
    case Icon::Information: box.setIcon(QMessageBox::Information); break;
    case Icon::Question: box.setIcon(QMessageBox::Question); break;
    case Icon::Warning: box.setIcon(QMessageBox::Warning); break;
    case Icon::Critical: box.setIcon(QMessageBox::Critical); break;
    }
    switch (message.buttons) {
    case Buttons::Ok: box.setStandardButtons(QMessageBox::Ok); break;
    case Buttons::YesNo: box.setStandardButtons(QMessageBox::Yes | QMessageBox::No); break;
    case Buttons::YesNoCancel:
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
        break;
    case Buttons::OkCancel: box.setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel); break;
    }
    switch (box.exec()) {
    case QMessageBox::Yes: return Answer::Yes;
    case QMessageBox::No: return Answer::No;
    case QMessageBox::Cancel: return Answer::Cancel;
    default: return Answer::Ok;
    }
}

Prompter::Answer ScriptedPrompter::ask(const Message &message)
{
    m_messages.append(message);
    if (!m_answers.isEmpty())
        return m_answers.takeFirst();
    switch (message.buttons) {
    case Buttons::Ok:
    case Buttons::OkCancel:
        return Answer::Ok;
    case Buttons::YesNo:
    case Buttons::YesNoCancel:
        return Answer::No;
    }
    return Answer::Ok;
}

void ScriptedPrompter::clear()
{
    m_answers.clear();
    m_messages.clear();
}
