// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "e2e/reader_bus.h"

#include <QDBusArgument>
#include <QDBusReply>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr uint alertRole = 2;
constexpr uint notificationRole = 101;

const QString accessible = u"org.a11y.atspi.Accessible"_s;
const QString action = u"org.a11y.atspi.Action"_s;
const QString registry = u"org.a11y.atspi.Registry"_s;

} // namespace

ReaderBus::~ReaderBus()
{
    QDBusConnection::disconnectFromBus(u"reader"_s);
    QDBusConnection::disconnectFromBus(u"session"_s);
    daemon_.kill();
    daemon_.waitForFinished(3000);
}

bool ReaderBus::start(const QProcessEnvironment &environment)
{
    daemon_.setProcessEnvironment(environment);
    daemon_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    daemon_.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address=1"_s});
    if (!daemon_.waitForStarted() || !daemon_.waitForReadyRead(5000))
        return false;
    address_ = QString::fromLatin1(daemon_.readLine().trimmed());
    QDBusConnection session = QDBusConnection::connectToBus(address_, u"session"_s);
    const QDBusReply<QString> own =
        session.call(QDBusMessage::createMethodCall(u"org.a11y.Bus"_s, u"/org/a11y/bus"_s, u"org.a11y.Bus"_s,
                                                    u"GetAddress"_s),
                     QDBus::Block, 10000);
    if (!own.isValid())
        return false;
    bus_ = QDBusConnection::connectToBus(own.value(), u"reader"_s);
    for (const QString &event : {u"object:state-changed:focused"_s, u"object:state-changed:showing"_s})
        call({registry, u"/org/a11y/atspi/registry"_s}, registry, u"RegisterEvent"_s, {event});
    return bus_.connect(QString(), QString(), u"org.a11y.atspi.Event.Object"_s, u"StateChanged"_s, this,
                        SLOT(onState(QDBusMessage)));
}

// Hearing ------------------------------------------------------------------------------------------

void ReaderBus::onState(const QDBusMessage &message)
{
    const QString state = message.arguments().value(0).toString();
    if (message.arguments().value(1).toInt() == 0)
        return;
    const Node node{message.service(), message.path()};
    if (state == u"focused") {
        focused_ << name(node);
    } else if (state == u"showing") {
        const QDBusReply<uint> role = call(node, accessible, u"GetRole"_s);
        if (role.value() == notificationRole || role.value() == alertRole)
            alerts_ << name(node);
    }
}

void ReaderBus::forget()
{
    alerts_.clear();
    focused_.clear();
}

bool ReaderBus::hears(const QString &text, int milliseconds)
{
    return QTest::qWaitFor([&] { return alerts_.contains(text); }, milliseconds);
}

QString ReaderBus::nextFocus(int milliseconds)
{
    QTest::qWaitFor([&] { return !focused_.isEmpty(); }, milliseconds);
    const QString last = focused_.isEmpty() ? QString() : focused_.last();
    focused_.clear();
    return last;
}

// Looking and pressing -----------------------------------------------------------------------------

QDBusMessage ReaderBus::call(const Node &node, const QString &interface, const QString &method,
                             const QVariantList &arguments)
{
    QDBusMessage message = QDBusMessage::createMethodCall(node.service, node.path, interface, method);
    message.setArguments(arguments);
    return bus_.call(message, QDBus::Block, 5000);
}

QVariant ReaderBus::property(const Node &node, const QString &interface, const QString &name)
{
    const QDBusMessage answer = call(node, u"org.freedesktop.DBus.Properties"_s, u"Get"_s, {interface, name});
    return answer.arguments().value(0).value<QDBusVariant>().variant();
}

QString ReaderBus::name(const Node &node) { return property(node, accessible, u"Name"_s).toString(); }

QList<ReaderBus::Node> ReaderBus::children(const Node &node)
{
    QList<Node> found;
    const QDBusMessage answer = call(node, accessible, u"GetChildren"_s);
    if (answer.type() != QDBusMessage::ReplyMessage)
        return found;
    const auto list = answer.arguments().value(0).value<QDBusArgument>();
    list.beginArray();
    while (!list.atEnd()) {
        Node child;
        QDBusObjectPath path;
        list.beginStructure();
        list >> child.service >> path;
        list.endStructure();
        child.path = path.path();
        found << child;
    }
    list.endArray();
    return found;
}

ReaderBus::Node ReaderBus::findBelow(const Node &node, const QString &name)
{
    for (const Node &child : children(node)) {
        if (this->name(child) == name)
            return child;
        if (const Node below = findBelow(child, name); below.isValid())
            return below;
    }
    return {};
}

ReaderBus::Node ReaderBus::find(const QString &name)
{
    return findBelow({registry, u"/org/a11y/atspi/accessible/root"_s}, name);
}

QStringList ReaderBus::actions(const Node &node)
{
    QStringList names;
    const int count = property(node, action, u"NActions"_s).toInt();
    for (int i = 0; i < count; ++i)
        names << QDBusReply<QString>(call(node, action, u"GetName"_s, {i})).value();
    return names;
}

bool ReaderBus::act(const Node &node, const QString &action)
{
    const auto index = static_cast<int>(actions(node).indexOf(action));
    return index >= 0 && QDBusReply<bool>(call(node, ::action, u"DoAction"_s, {index})).value();
}
