// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "e2e/reader_bus.h"

#include <QDBusArgument>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int wait = 8000; ///< milliseconds
const QStringList spokenRoles{u"alert"_s, u"notification"_s};
const QString registry = u"org.a11y.atspi.Registry"_s;

} // namespace

ReaderBus::~ReaderBus()
{
    QDBusConnection::disconnectFromBus(u"reader"_s);
    QDBusConnection::disconnectFromBus(u"session"_s);
    daemon_.terminate();
    daemon_.waitForFinished(3000);
}

bool ReaderBus::start(const QProcessEnvironment &environment)
{
    daemon_.setProcessEnvironment(environment);
    daemon_.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address=1"_s});
    if (!daemon_.waitForStarted() || !daemon_.waitForReadyRead(wait))
        return false;
    address_ = QString::fromLatin1(daemon_.readLine().trimmed());
    bus_ = QDBusConnection::connectToBus(address_, u"session"_s);
    const QVariant own = ask({u"org.a11y.Bus"_s, u"/org/a11y/bus"_s}, u"GetAddress"_s, {}, u"org.a11y.Bus"_s);
    bus_ = QDBusConnection::connectToBus(own.toString(), u"reader"_s);
    for (const QString &event : {u"object:state-changed:focused"_s, u"object:state-changed:showing"_s})
        ask({registry, u"/org/a11y/atspi/registry"_s}, u"RegisterEvent"_s, {event}, registry);
    return bus_.connect(QString(), QString(), u"org.a11y.atspi.Event.Object"_s, u"StateChanged"_s, this,
                        SLOT(onState(QDBusMessage)));
}

void ReaderBus::onState(const QDBusMessage &message)
{
    const Node node{message.service(), message.path()};
    if (message.arguments().value(1).toInt() == 0)
        return;
    if (message.arguments().first() == u"focused"_s)
        focused_ << name(node);
    else if (spokenRoles.contains(ask(node, u"GetRoleName"_s).toString()))
        alerts_ << name(node);
}

bool ReaderBus::hears(const QString &text)
{
    const bool heard = QTest::qWaitFor([&] { return alerts_.contains(text); }, wait);
    if (!heard)
        qWarning("not said: %s, but: %s", qPrintable(text), qPrintable(alerts_.join(u'|')));
    alerts_.clear();
    return heard;
}

QString ReaderBus::nextFocus()
{
    QTest::qWaitFor([&] { return !focused_.isEmpty(); }, wait);
    return std::exchange(focused_, {}).value(0);
}

QVariant ReaderBus::ask(const Node &node, const QString &method, const QVariantList &arguments,
                        const QString &interface)
{
    QDBusMessage message = QDBusMessage::createMethodCall(node.service, node.path, interface, method);
    message.setArguments(arguments);
    return bus_.call(message, QDBus::Block, wait).arguments().value(0);
}

QString ReaderBus::name(const Node &node)
{
    return ask(node, u"Get"_s, {u"org.a11y.atspi.Accessible"_s, u"Name"_s},
               u"org.freedesktop.DBus.Properties"_s)
        .value<QDBusVariant>()
        .variant()
        .toString();
}

ReaderBus::Node ReaderBus::find(const QString &name)
{
    return findBelow({registry, u"/org/a11y/atspi/accessible/root"_s}, name);
}

ReaderBus::Node ReaderBus::findBelow(const Node &node, const QString &name)
{
    if (this->name(node) == name)
        return node;
    const auto children = ask(node, u"GetChildren"_s).value<QDBusArgument>();
    if (children.currentType() != QDBusArgument::ArrayType)
        return {};
    Node found;
    for (children.beginArray(); !children.atEnd() && found.path.isEmpty();) {
        Node child;
        QDBusObjectPath path;
        children.beginStructure();
        children >> child.service >> path;
        children.endStructure();
        child.path = path.path();
        found = findBelow(child, name);
    }
    return found;
}

bool ReaderBus::press(const Node &node)
{
    return ask(node, u"DoAction"_s, {0}, u"org.a11y.atspi.Action"_s).toBool();
}
