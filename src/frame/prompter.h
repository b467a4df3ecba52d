#pragma once

#include "lumoicinitial_global.h"

#include <QList>
#include <QString>
#include <QStringList>

// Every message box of the library goes through the prompter. The application's prompter shows a
// QMessageBox; a scripted prompter (tests, the automation runner) answers from a queue and records
// what was asked.
class LUMOICINITIAL_EXPORT Prompter
{
public:
    enum class Buttons { Ok, YesNo, YesNoCancel, OkCancel };
    enum class Icon { Information, Question, Warning, Critical };
    enum class Answer { Ok, Yes, No, Cancel };

    struct Message
    {
        QString caption;
        QString text;
        Buttons buttons;
        Icon icon;
    };

    virtual ~Prompter() = default;
    virtual Answer ask(const Message &message) = 0;

    // The prompter the library uses; the application's by default.
    static Prompter &current();
    // Installs a prompter for the process (null restores the application's). Not owned.
    static void install(Prompter *prompter);

    static QString buttonsName(Buttons buttons);
    static QString iconName(Icon icon);
    static QString answerName(Answer answer);
    // "Yes", "no", "OK", "Cancel": any case. Throws std::invalid_argument for other texts.
    static Answer answerFromName(const QString &name);
};

class LUMOICINITIAL_EXPORT MessageBoxPrompter : public Prompter
{
public:
    Answer ask(const Message &message) override;
};

// Answers in the order queued; with the queue empty it gives the box's default answer (OK, or No
// for a question, so a script that forgot an answer never saves by accident).
class LUMOICINITIAL_EXPORT ScriptedPrompter : public Prompter
{
public:
    Answer ask(const Message &message) override;

    void queueAnswer(Answer answer) { m_answers.append(answer); }
    const QList<Message> &messages() const { return m_messages; }
    int pendingAnswers() const { return int(m_answers.size()); }
    void clear();

private:
    QList<Answer> m_answers;
    QList<Message> m_messages;
};

// Installs a scripted prompter for the lifetime of a scope (tests).
class LUMOICINITIAL_EXPORT ScopedPrompter
{
public:
    explicit ScopedPrompter(Prompter *prompter) { Prompter::install(prompter); }
    ~ScopedPrompter() { Prompter::install(nullptr); }
    ScopedPrompter(const ScopedPrompter &) = delete;
    ScopedPrompter &operator=(const ScopedPrompter &) = delete;
};
