// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/work.h"
#include "support/test_class.h"
#include "support/test_ground.h"

namespace {

/// Notes what a work shows.
struct NotedView : WorkView
{
    QStringList shown;
    void begin(const WorkPlan &plan) override { shown << u"begin %1"_s.arg(plan.maximum); }
    void tell(const QString &caption) override { shown << caption; }
    void offerCancel() override { shown << u"X"_s; }
    void end() override { shown << u"end"_s; }
};

void letRun()
{
    for (int i = 0; i < 10; ++i)
        QCoreApplication::processEvents();
}

} // namespace

/// The stack of what lets events run, and the works that stand on it.
class GateTest : public QObject
{
    Q_OBJECT

private slots:
    void whatComesFromOutsideWaitsInItsOrder()
    {
        Gate gate;
        QStringList done;
        const auto task = [&](const QString &name) {
            gate.whenFree([&, name] {
                done << name;
                QVERIFY(!gate.isFree());
                letRun(); // the next waits until this one has come back
                done << name + u" ends"_s;
            });
        };
        {
            const Gate::Passage command = gate.enter(Gate::Way::Play);
            QVERIFY(command && !gate.enter(Gate::Way::Play) && gate.enter(Gate::Way::Look));
            task(u"a"_s);
            task(u"b"_s);
            letRun();
        }
        QVERIFY2(done.isEmpty(), "from the event loop, not from whoever leaves");
        letRun();
        QCOMPARE(done, (QStringList{u"a"_s, u"a ends"_s, u"b"_s, u"b ends"_s}));
        task(u"c"_s);
        gate.requestClose();
        task(u"d"_s);
        letRun();
        QCOMPARE(done.size(), 4);
        QVERIFY(!gate.enter(Gate::Way::Look));
    }

    void closingWaitsForTheStack()
    {
        TestGround t;
        QSignalSpy asked(&t.gate, &Gate::closeRequested);
        QSignalSpy closed(&t.gate, &Gate::closeNow);
        {
            Work work(t.ground, {}, nullptr);
            t.gate.requestClose();
            t.gate.requestClose();
            QVERIFY(work.isCancelled());
            work.forgetCancel();
            QVERIFY2(work.isCancelled(), "a window that closes is not forgotten");
            QVERIFY2(Work(t.ground).isCancelled(), "nothing new is begun");
            QCOMPARE(t.gatedBoxes.ShowMBox(u"?"_s, true, 3, {}, {}), 1);
            QCOMPARE(t.gatedBoxes.ShowMBox(u"?"_s, false, 3, {}, {}), 0);
            QVERIFY(t.gatedBoxes.plainBox(Boxes::Icon::Question, {}, {}, Boxes::Buttons::YesNoCancel) ==
                    Boxes::Answer::Cancel);
            QCOMPARE(t.gatedDialogs.openFiles({}, {}, {}, true), QStringList());
            letRun();
            QCOMPARE(closed.size(), 0);
        }
        letRun();
        letRun();
        QCOMPARE(asked.size(), 1);
        QCOMPARE(closed.size(), 1);
        QVERIFY2(t.ok(), "no box was shown");
    }

    void aPartSharesTheWorkItStandsIn()
    {
        TestGround t;
        NotedView view;
        NotedView other;
        t.gate.setView(&view);
        {
            Work work(t.ground, {WorkPlan::Words, 7});
            {
                Work part(t.ground, {WorkPlan::Cancel, 9}, &other);
                part.tell(u"halb"_s);
                part.offerCancel();
                part.offerCancel();
                t.pump.waiting = true;
                t.pump.onServe = [&] { t.gate.cancelWork(); };
                QVERIFY(!part.goesOn());
                QVERIFY(work.isCancelled() && part.preparesWords());
                part.forgetCancel();
            }
            QVERIFY(!work.isCancelled() && t.gate.work() == &work);
        }
        QCOMPARE(view.shown, (QStringList{u"begin 7"_s, u"halb"_s, u"X"_s, u"end"_s}));
        QVERIFY(other.shown.isEmpty() && t.gate.work() == nullptr && t.gate.isFree());
    }
};

WORTEL_TEST(GateTest)
#include "tst_gate.moc"
