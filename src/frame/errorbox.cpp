#include "errorbox.h"

#include "logincontext.h"
#include "messages.h"

#include "frame/automation/errobject.h"

QString errorMessageText(const QString &message, bool withErrorInfo)
{
    if (!withErrorInfo)
        return ResString(message);
    const ErrState &error = ErrObject::current();
    return ResString(message) + Msg::LineBreak + ResString(Msg::ErrorReason) + error.description + Msg::LineBreak
           + ResString(Msg::ErrorSource) + error.source;
}

void ShowErrorMsg(const QString &message, bool withErrorInfo)
{
    const QString text = errorMessageText(message, withErrorInfo);
    if (withErrorInfo)
        ErrObject::current().number = 0;
    Prompter::current().ask({ResString(Msg::Caption), text, Prompter::Buttons::Ok, Prompter::Icon::Information});
}

void reportProcedureError(const QString &procedure, const LumoError &error)
{
    ErrObject::set(error);
    ShowErrorMsg(Msg::procedureFailed(procedure), true);
}

bool askYesNo(const QString &question)
{
    return askYesNo(question, Msg::Caption);
}

bool askYesNo(const QString &question, const QString &caption)
{
    return Prompter::current().ask({ResString(caption), ResString(question), Prompter::Buttons::YesNo,
                                    Prompter::Icon::Question})
           == Prompter::Answer::Yes;
}

Prompter::Answer askYesNoCancel(const QString &question)
{
    return Prompter::current().ask({ResString(Msg::Caption), ResString(question), Prompter::Buttons::YesNoCancel,
                                    Prompter::Icon::Question});
}

void tellUser(const QString &message)
{
    Prompter::current().ask({ResString(Msg::Caption), ResString(message), Prompter::Buttons::Ok,
                             Prompter::Icon::Information});
}
