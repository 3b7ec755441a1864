#pragma once

#include <QStringList>
#include <QtGlobal>

/// Keeps what is logged while it lives, instead of letting it out.
class NotedMessages
{
public:
    NotedMessages()
        : before(qInstallMessageHandler(note))
    {
        texts.clear();
    }
    ~NotedMessages() { qInstallMessageHandler(before); }
    Q_DISABLE_COPY(NotedMessages)

    inline static QStringList texts;

private:
    static void note(QtMsgType /*type*/, const QMessageLogContext & /*context*/,
                     const QString &text)
    {
        texts += text;
    }

    QtMessageHandler before;
};
