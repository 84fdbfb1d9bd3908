// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "e2e/desktop.h"
#include "e2e/known_board.h"
#include "support/test_class.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>

#include <memory>

namespace {

constexpr int wait = 8000; ///< milliseconds
const QStringList spokenRoles{u"alert"_s, u"notification"_s};
const QString registry = u"org.a11y.atspi.Registry"_s;

} // namespace

/// A screen reader on an accessibility bus of its own: it hears what programs tell, and looks into their
/// trees and presses what it finds there. Every wait has an end.
class ReaderBus : public QObject
{
    Q_OBJECT

public:
    /// A node of a program's tree; without a path none.
    struct Node
    {
        QString service, path;
    };

    ~ReaderBus() override;

    /// Starts a session's bus with that environment, and the accessibility bus on it.
    bool start(const QProcessEnvironment &environment);
    QString address() const { return address_; }

    /// Waits until `text` is spoken as an alert.
    bool hears(const QString &text);
    /// Waits for the name of what gets the keyboard next, or returns nothing.
    QString nextFocus();

    /// The first node of that name in the programs' trees.
    Node find(const QString &name);
    /// Does a node's first action, its press. False if it has none.
    bool press(const Node &node);

private slots:
    void onState(const QDBusMessage &message);

private:
    QVariant ask(const Node &node, const QString &method, const QVariantList &arguments = {},
                 const QString &interface = QStringLiteral("org.a11y.atspi.Accessible"));
    QString name(const Node &node);
    Node findBelow(const Node &node, const QString &name);

    QProcess daemon_;
    QString address_;
    QDBusConnection bus_{QString()};
    QStringList alerts_, focused_;
};

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
    alerts_ = alerts_.mid(alerts_.indexOf(text) + 1);
    return heard;
}

QString ReaderBus::nextFocus()
{
    return QTest::qWaitFor([&] { return !focused_.isEmpty(); }, wait) ? focused_.takeLast() : QString();
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
    children.endArray();
    return found;
}

bool ReaderBus::press(const Node &node)
{
    return ask(node, u"DoAction"_s, {0}, u"org.a11y.atspi.Action"_s).toBool();
}

/// A child that does not see builds words of tiles, has them checked and hears the verdict: by keys alone,
/// and by the presses of its screen reader, on one run of the program.
class BlindChildTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        desktop_ = std::make_unique<Desktop>(QSize(1024, 640));
        QVERIFY(desktop_->isReady());
        quiet(*desktop_);
        desktop_->setSetting(u"VerifyWinTime"_s, u"1"_s);
        QVERIFY(bus_.start(desktop_->environment()));
        desktop_->setVariable(u"DBUS_SESSION_BUS_ADDRESS"_s, bus_.address());
        desktop_->setVariable(u"QT_LINUX_ACCESSIBILITY_ALWAYS_ON"_s, u"1"_s);
        QVERIFY(startKnownBoard(*desktop_));
        QVERIFY(QTest::qWaitFor([this] { return !bus_.find(u"lauf, Wortel"_s).path.isEmpty(); }, 10000));
    }

    void byKeysAlone()
    {
        QVERIFY(goesTo(u"lauf, Wortel"_s));
        desktop_->key(u"Return"_s);
        QVERIFY(bus_.hears(u"Wort: lauf"_s));
        QVERIFY(goesTo(u"en, Suffix"_s));
        desktop_->key(u"Return"_s);
        QVERIFY(bus_.hears(u"Wort: laufen"_s));
        desktop_->key(u"F6 Return"_s); // in the word field: the check
        QVERIFY(bus_.hears(u"Richtig ! Das gesuchte Wort \"laufen\" ist richtig."_s));
    }

    void byTheReadersPresses()
    {
        desktop_->key(u"F6"_s);
        QVERIFY(bus_.press(bus_.find(u"mach, Wortel"_s)));
        QVERIFY(bus_.hears(u"Wort: mach"_s));
        Desktop::pause(3000); // tools rest until the report has gone
        QVERIFY(bus_.press(bus_.find(u"Wortkontrolle"_s)));
        QVERIFY(bus_.hears(u"Richtig ! Das gesuchte Wort \"mach\" ist richtig."_s));
    }

    void byAHand()
    {
        const QPoint corner = desktop_->boardArea().topLeft();
        desktop_->drag(corner + QPoint(570, 160), corner + QPoint(60, 300));
        QVERIFY(bus_.hears(u"Aufgenommen: fahr, Wortel"_s));
        QVERIFY(bus_.hears(u"Abgelegt: fahr, Wortel, links in der Mitte"_s));
    }

private:
    /// Goes over the board tile by tile until that one is spoken.
    bool goesTo(const QString &tile)
    {
        QString spoken;
        for (const QString &key : QStringList{u"Home"_s} + QStringList(8, u"Next"_s)) {
            desktop_->key(key);
            spoken = bus_.nextFocus();
            if (spoken == tile)
                return true;
        }
        qWarning("not reached; the last was %s", qPrintable(spoken));
        return false;
    }

    std::unique_ptr<Desktop> desktop_;
    ReaderBus bus_;
};
WORTEL_TEST(BlindChildTest)
#include "tst_blind_child.moc"
