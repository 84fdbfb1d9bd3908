// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/best_times_window.h"
#include "dialogs/high_score_window.h"
#include "dialogs/input_box.h"
#include "dialogs/message_box.h"
#include "platform/boxes.h"
#include "support/heard.h"
#include "support/registry.h"
#include "support/test_house.h"
#include "widgets/alpha_panel.h"

#include <QDialog>
#include <QtTest>

#include <functional>

using command::From;
using namespace Qt::StringLiterals;

namespace {

using Open = std::function<void(TestHouse &)>;

/// Parts of a control or of the picture that a reader passes over if they have no name.
bool mayBeNameless(QAccessible::Role role)
{
    switch (role) {
    case QAccessible::ScrollBar:
    case QAccessible::Client:
    case QAccessible::Grouping:
    case QAccessible::Splitter:
    case QAccessible::Separator:
    case QAccessible::LayeredPane:
    case QAccessible::Pane:
    case QAccessible::Border:
    case QAccessible::TitleBar:
    case QAccessible::ToolBar:
    case QAccessible::Graphic:
    case QAccessible::ColumnHeader:
    case QAccessible::RowHeader:
        return true;
    default:
        return false;
    }
}

bool isPressed(QAccessible::Role role)
{
    return role == QAccessible::PushButton || role == QAccessible::CheckBox ||
           role == QAccessible::RadioButton || role == QAccessible::ButtonMenu;
}

/// What a reader could do nothing with, below a node that is seen.
void walk(QAccessibleInterface *node, QStringList &faults)
{
    const QAccessible::State state = node->state();
    if (state.invisible)
        return;
    const QAccessible::Role role = node->role();
    const QObject *object = node->object();
    const QString who = u"%1 %2 role %3"_s.arg(
        object == nullptr ? QString() : QLatin1String(object->metaObject()->className()),
        object == nullptr ? QString() : object->objectName(), QString::number(role, 16));
    if (!node->isValid())
        faults << u"invalid: "_s + who;
    if (node->text(QAccessible::Name).trimmed().isEmpty() && !mayBeNameless(role))
        faults << u"nameless: "_s + who;
    if (isPressed(role) && !state.disabled) {
        QAccessibleActionInterface *actions = node->actionInterface();
        const QStringList names = actions == nullptr ? QStringList() : actions->actionNames();
        if (!names.contains(QAccessibleActionInterface::pressAction()) &&
            !names.contains(QAccessibleActionInterface::toggleAction()) &&
            !names.contains(QAccessibleActionInterface::showMenuAction()))
            faults << u"dead: "_s + who;
    }
    if (role == QAccessible::ScrollBar)
        return;
    constexpr int mostRows = 60; // rows of one list are alike
    for (int i = 0; i < std::min(node->childCount(), mostRows); ++i) {
        QAccessibleInterface *child = node->child(i);
        if (child == nullptr)
            faults << u"no child %1: "_s.arg(i) + who;
        else
            walk(child, faults);
    }
}

QStringList faultsOf(QWidget &window)
{
    QStringList faults;
    walk(QAccessible::queryAccessibleInterface(&window), faults);
    return faults;
}

/// Shows a box of that type and walks it.
template <typename Box, typename... Arguments> QStringList faultsOfBox(Arguments &&...arguments)
{
    Box box(std::forward<Arguments>(arguments)...);
    box.show();
    QCoreApplication::processEvents();
    return faultsOf(box);
}

/// Notes the mouse presses that arrive, and keeps them from acting.
class Presses : public QObject
{
public:
    QStringList seen;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::MouseButtonPress)
            seen << watched->objectName() + (static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton
                                                 ? u" left"_s
                                                 : u" right"_s);
        return event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonRelease;
    }
};

} // namespace
Q_DECLARE_METATYPE(Open)

class ReaderTreeTest : public QObject
{
    Q_OBJECT

private slots:
    void everyNodeHasNameAndAction_data()
    {
        QTest::addColumn<Open>("open");
        const auto row = [](const char *name, Open open) { QTest::newRow(name) << std::move(open); };
        const auto command = [&row](const char *name, int id) {
            row(name, [id](TestHouse &h) { h.run(From::MainMenu, id); });
        };
        row("main window", [](TestHouse &) {});
        row("dictionary", [](TestHouse &h) { h.tool(h.controls.Command3); });
        row("word list", [](TestHouse &h) { h.tool(h.controls.Command4); });
        row("tip", [](TestHouse &h) { h.r.tips.mnuShowTip_Click(); });
        row("report", [](TestHouse &h) { h.tool(h.controls.Command2); });
        row("copying", [](TestHouse &h) { h.tool(h.controls.Check4); });
        row("game", [](TestHouse &h) { h.tool(h.controls.Check3); });
        row("vowels", [](TestHouse &h) { h.tool(h.controls.ChkVokal[1], Qt::RightButton); });
        command("cards", 150);
        command("options", 901);
        command("handbook", 1001);
        command("about", 1003);
        command("chooser", 1608);
        command("stems", 1701);
        command("printer set-up", 1905);
        row("web page", [](TestHouse &h) {
            h.t.fileDialogs.willSave({});
            h.run(From::MainMenu, 1907);
        });
    }
    void everyNodeHasNameAndAction()
    {
        QFETCH(Open, open);
        TestHouse house;
        house.lay(wortelKind, 300, 200, u"halt"_s);
        house.lists.CorrectWordList.addAll({u"Haus"_s, u"laufen"_s});
        house.controls.Dropper1->setCaption(u"Haus"_s);
        house.form.show();
        TestHouse::settle();
        QStringList faults;
        bool walked = false;
        QTimer::singleShot(0, &house.form, [&] {
            if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget())) {
                faults = faultsOf(*dialog);
                walked = true;
                dialog->reject();
            }
        });
        open(house);
        TestHouse::settle();
        for (QWidget *window : QApplication::topLevelWidgets())
            if (!walked && window->isVisible() && window->windowType() != Qt::ToolTip)
                faults << faultsOf(*window);
        for (QWidget *window : QApplication::topLevelWidgets())
            if (window != &house.form)
                window->close();
        faults.removeDuplicates();
        QCOMPARE(faults.join(u'\n'), QString());
    }

    void everyBoxHasNameAndAction()
    {
        const HighScoreSheet sheet{
            u"Titel"_s, u"Klotar"_s, u"12 Wörter"_s, {{u"Eva"_s, u"12"_s}, {u"Uli"_s, u"7"_s}}, 1};
        QStringList faults;
        Heard heard;
        faults << faultsOfBox<MBox>(u"Willst du?"_s, 3, u"Frage"_s, BoxStyle::Wortel, nullptr);
        QCOMPARE(Heard::alerts(), QStringList{u"Willst du?"_s});
        faults << faultsOfBox<frmMboxRetype>(u"Gut\ngemacht"_s, BoxSign::Info, u"Lob"_s, nullptr);
        QCOMPARE(Heard::alerts(), QStringList{u"Gut gemacht"_s});
        faults << faultsOfBox<IBox>(u"Welches Wort?"_s, BoxStyle::Prefix, u"ver"_s, u"Frage"_s, nullptr);
        faults << faultsOfBox<frmChgCorrectWords>(u"Welches Wort?"_s, u"ver"_s, u"Frage"_s, nullptr);
        faults << faultsOfBox<frmEnterName>(u"Dein Name"_s, nullptr);
        faults << faultsOfBox<frmHighScore>(sheet, nullptr);
        faults << faultsOfBox<frmBestTimes>(sheet, nullptr);
        QCOMPARE(faults.join(u'\n'), QString());
    }

    /// A reader's presses arrive as a hand's, and the right one where the tip tells of one.
    void toolsArePressed()
    {
        TestHouse house;
        house.form.show();
        TestHouse::settle();
        Presses presses;
        int tools = 0;
        for (QWidget *tool : house.form.findChildren<QWidget *>()) {
            if ((qobject_cast<PressButton *>(tool) == nullptr &&
                 qobject_cast<ClickLabel *>(tool) == nullptr) ||
                !tool->isVisible() || !tool->isEnabled())
                continue;
            ++tools;
            tool->installEventFilter(&presses);
            QAccessibleActionInterface *actions =
                QAccessible::queryAccessibleInterface(tool)->actionInterface();
            const bool hasRight = tool->toolTip().contains(u" / "_s);
            QCOMPARE(actions->actionNames().contains(QAccessibleActionInterface::showMenuAction()), hasRight);
            QStringList expected{tool->objectName() + u" left"_s};
            actions->doAction(QAccessibleActionInterface::pressAction());
            if (hasRight) {
                actions->doAction(QAccessibleActionInterface::showMenuAction());
                expected << tool->objectName() + u" right"_s;
            }
            QVERIFY(presses.seen.isEmpty()); // not within the reader's question
            TestHouse::settle();
            QCOMPARE(presses.seen, expected);
            presses.seen.clear();
        }
        QVERIFY(tools >= 20);
    }

    void toolsTellNameAndState_data()
    {
        QTest::addColumn<QString>("tool");
        QTest::addColumn<QString>("told");
        QTest::newRow("counter") << u"OptType(0)"_s << u"1 Wortel, option"_s;
        QTest::newRow("filter on") << u"OptType(3)"_s << u"1 Bausteine, option, checked"_s;
        QTest::newRow("level") << u"Option2(0)"_s << u"Schwierigkeitsstufe 1, option, checked"_s;
        QTest::newRow("mode") << u"Option1(0)"_s << u"Ziehmodus Wortkontrolle, option"_s;
        QTest::newRow("box") << u"ChkVokal(0)"_s << u"Kurzvokal-Kontrolle, box"_s;
        QTest::newRow("tool") << u"Command2"_s << u"Wortkontrolle, button"_s;
        QTest::newRow("rests") << u"Check2"_s << u"Wortel einfügen, button, disabled"_s;
        QTest::newRow("field") << u"lblprefix"_s << u"Wort, field"_s;
        QTest::newRow("list") << u"LexiconList"_s << u"Wörterbuch, list"_s;
    }
    void toolsTellNameAndState()
    {
        QFETCH(QString, tool);
        TestHouse house;
        house.lay(wortelKind, 300, 200, u"halt"_s);
        house.form.show();
        house.controls.Check2->setEnabled(tool != u"Check2"_s);
        QAccessibleInterface *node =
            QAccessible::queryAccessibleInterface(house.form.findChild<QWidget *>(tool));
        static const QHash<QAccessible::Role, QString> roles{
            {QAccessible::RadioButton, u"option"_s}, {QAccessible::CheckBox, u"box"_s},
            {QAccessible::PushButton, u"button"_s},  {QAccessible::EditableText, u"field"_s},
            {QAccessible::List, u"list"_s},
        };
        QStringList told{node->text(QAccessible::Name), roles.value(node->role())};
        if (node->state().checked)
            told << u"checked"_s;
        if (node->state().disabled)
            told << u"disabled"_s;
        QTEST(told.join(u", "_s), "told");
    }
};
WORTEL_TEST(ReaderTreeTest)
#include "tst_reader_tree.moc"
