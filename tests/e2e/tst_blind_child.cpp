// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "e2e/desktop.h"
#include "e2e/known_board.h"
#include "e2e/reader_bus.h"
#include "support/registry.h"

#include <QtTest>

#include <memory>

using namespace Qt::StringLiterals;

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
        desktop_->start({desktop_->writeFile(u"brett.wlx"_s, knownBoard())});
        QVERIFY(!desktop_->waitForWindow(mainWindow).isEmpty());
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
        QVERIFY(bus_.hears(u"Wort nicht gefunden Das gesuchte Wort \"mach\" steht nicht im Wörterbuch."_s));
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
