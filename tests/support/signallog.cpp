#include "signallog.h"

#include <QMetaMethod>

SignalLog::SignalLog(QObject *object)
{
    const QMetaObject *const type = object->metaObject();
    for (int index = type->methodOffset(); index < type->methodCount(); ++index) {
        const QMetaMethod method = type->method(index);
        if (method.methodType() == QMetaMethod::Signal) // as the SIGNAL macro would name it
            m_spies.push_back(std::make_unique<QSignalSpy>(object, '2' + method.methodSignature()));
    }
}

QString SignalLog::take()
{
    QStringList all;
    for (const auto &spy : m_spies) {
        const QString signature = QString::fromLatin1(spy->signal());
        const QString name = signature.left(signature.indexOf(QLatin1Char('(')));
        while (!spy->isEmpty()) {
            QStringList arguments;
            const QVariantList emission = spy->takeFirst();
            for (const QVariant &argument : emission)
                arguments << argument.toString();
            all << QStringLiteral("%1(%2)").arg(name, arguments.join(QLatin1Char(',')));
        }
    }
    return all.join(QLatin1Char(' '));
}
