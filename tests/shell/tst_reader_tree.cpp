// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/best_times_window.h"
#include "dialogs/high_score_window.h"
#include "dialogs/input_box.h"
#include "dialogs/message_box.h"
#include "platform/boxes.h"
#include "support/test_class.h"
#include "support/test_house.h"

#include <QDialog>

using command::From;

namespace {

/// Roles of the parts of a control or of the picture, which a reader passes over if they have no name.
const QSet<QAccessible::Role> mute{QAccessible::ScrollBar, QAccessible::Client,      QAccessible::Grouping,
                                   QAccessible::Splitter,  QAccessible::Separator,   QAccessible::Pane,
                                   QAccessible::Border,    QAccessible::LayeredPane, QAccessible::ToolBar,
                                   QAccessible::Graphic,   QAccessible::Grip};
const QSet<QAccessible::Role> pressed{QAccessible::PushButton, QAccessible::CheckBox,
                                      QAccessible::RadioButton, QAccessible::ButtonMenu,
                                      QAccessible::ListItem};

/// What a reader could do nothing with, below a node that is seen.
QStringList faultsBelow(QAccessibleInterface *node)
{
    if (node == nullptr || !node->isValid())
        return {u"no child"_s};
    const auto *label = qobject_cast<const QLabel *>(node->object());
    if (node->state().invisible || (label != nullptr && label->text().isEmpty() && label->pixmap().isNull()))
        return {}; // nothing to be read
    const QAccessible::Role role = node->role();
    const QString who =
        u"%1 role %2 %3"_s.arg(node->object() == nullptr ? QString() : node->object()->objectName())
            .arg(role, 0, 16)
            .arg(node->text(QAccessible::Name));
    QStringList faults;
    if (node->text(QAccessible::Name).trimmed().isEmpty() && !mute.contains(role))
        faults << u"nameless: "_s + who;
    if (pressed.contains(role) && !node->state().disabled &&
        (node->actionInterface() == nullptr || node->actionInterface()->actionNames().isEmpty()))
        faults << u"dead: "_s + who;
    constexpr int mostRows = 60; // rows of one list are alike
    if (role != QAccessible::ScrollBar)
        for (int i = 0; i < std::min(node->childCount(), mostRows); ++i)
            faults << faultsBelow(node->child(i));
    faults.removeDuplicates();
    return faults;
}

QStringList faultsOf(QWidget &window) { return faultsBelow(QAccessible::queryAccessibleInterface(&window)); }

/// The same of a box, once it is shown.
template <typename Box> QString faultsOfBox(Box &&box)
{
    box.show();
    return faultsOf(box).join(u'\n');
}

struct Window
{
    const char *name;
    void (*open)(TestHouse &);
};

// clang-format off
#define OPEN(...) [](TestHouse &h) { __VA_ARGS__; }
const Window windows[] = {
    {"main window", OPEN((void)h)},
    {"dictionary", OPEN(h.tool(h.controls.Command3))},
    {"word list", OPEN(h.tool(h.controls.Command4))},
    {"tip", OPEN(h.r.tips.mnuShowTip_Click())},
    {"report", OPEN(h.tool(h.controls.Command2))},
    {"copying", OPEN(h.tool(h.controls.Check4))},
    {"game", OPEN(h.tool(h.controls.Check3))},
    {"vowels", OPEN(h.tool(h.controls.ChkVokal[1], Qt::RightButton))},
    {"cards", OPEN(h.run(From::MainMenu, 150))},
    {"options", OPEN(h.run(From::MainMenu, 901))},
    {"handbook", OPEN(h.run(From::MainMenu, 1001))},
    {"about", OPEN(h.run(From::MainMenu, 1003))},
    {"chooser", OPEN(h.run(From::MainMenu, 1608))},
    {"stems", OPEN(h.run(From::MainMenu, 1701))},
    {"printer set-up", OPEN(h.run(From::MainMenu, 1905))},
    {"web page", OPEN(h.t.fileDialogs.willSave({}); h.run(From::MainMenu, 1907))},
};
#undef OPEN
// clang-format on

/// Notes the mouse presses that arrive, and keeps them from acting.
struct Presses : QObject
{
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::MouseButtonPress)
            seen << static_cast<QMouseEvent *>(event)->button();
        return event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonRelease;
    }
    QList<Qt::MouseButton> seen;
};

} // namespace

class ReaderTreeTest : public QObject
{
    Q_OBJECT

private slots:
    void everyNodeHasNameAndAction_data()
    {
        QTest::addColumn<int>("row");
        for (int i = 0; i < static_cast<int>(std::size(windows)); ++i)
            QTest::newRow(windows[i].name) << i;
    }
    void everyNodeHasNameAndAction()
    {
        QFETCH(int, row);
        TestHouse house;
        house.lay(wortelKind, 300, 200, u"halt"_s);
        house.lists.CorrectWordList.addAll({u"Haus"_s, u"laufen"_s});
        house.controls.Dropper1->setCaption(u"Haus"_s);
        house.form.show();
        TestHouse::settle();
        std::optional<QStringList> faults;
        QTimer::singleShot(0, &house.form, [&] {
            if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget())) {
                faults = faultsOf(*dialog);
                dialog->reject();
            }
        });
        windows[row].open(house);
        TestHouse::settle();
        for (QWidget *window : QApplication::topLevelWidgets()) {
            if (!faults && window->isVisible() && window != &house.form)
                faults = faultsOf(*window);
            if (window != &house.form)
                window->close();
        }
        QCOMPARE(faults.value_or(faultsOf(house.form)).join(u'\n'), QString());
    }

    void everyBoxHasNameAndAction()
    {
        const HighScoreSheet sheet{u"Titel"_s, u"Klotar"_s, u"12 Wörter"_s, {{u"Eva"_s, u"12"_s}}, 1};
        QCOMPARE(faultsOfBox(MBox(u"Los?"_s, 3, u"Frage"_s, BoxStyle::Wortel, nullptr)), QString());
        QCOMPARE(faultsOfBox(frmMboxRetype(u"Gut"_s, BoxSign::Info, u"Lob"_s, nullptr)), QString());
        QCOMPARE(faultsOfBox(IBox(u"Was?"_s, BoxStyle::Prefix, {}, u"Frage"_s, nullptr)), QString());
        QCOMPARE(faultsOfBox(frmChgCorrectWords(u"Was?"_s, {}, u"Frage"_s, nullptr)), QString());
        QCOMPARE(faultsOfBox(frmEnterName(u"Name"_s, nullptr)), QString());
        QCOMPARE(faultsOfBox(frmHighScore(sheet, nullptr)), QString());
        QCOMPARE(faultsOfBox(frmBestTimes(sheet, nullptr)), QString());
    }

    /// A reader's presses arrive as a hand's, and the right one where the tip tells of one.
    void toolsArePressed()
    {
        TestHouse house;
        house.form.show();
        TestHouse::settle();
        int tools = 0;
        for (QWidget *tool : house.form.findChildren<QWidget *>()) {
            if ((!qobject_cast<PressButton *>(tool) && !qobject_cast<ClickLabel *>(tool)) ||
                !tool->isVisible())
                continue;
            Presses presses;
            tool->installEventFilter(&presses);
            QAccessibleActionInterface *actions =
                QAccessible::queryAccessibleInterface(tool)->actionInterface();
            QList<Qt::MouseButton> expected;
            for (const auto &[action, button] :
                 {std::pair{QAccessibleActionInterface::pressAction(), Qt::LeftButton},
                  std::pair{QAccessibleActionInterface::showMenuAction(), Qt::RightButton}})
                if (actions->actionNames().contains(action)) {
                    actions->doAction(action);
                    expected << button;
                }
            QCOMPARE(expected.size(), tool->toolTip().contains(u" / "_s) ? 2 : 1);
            QVERIFY(presses.seen.isEmpty()); // not within the reader's question
            TestHouse::settle();
            QCOMPARE(presses.seen, expected);
            ++tools;
        }
        QVERIFY(tools >= 20);
    }

    void toolsTellNameAndState_data()
    {
        QTest::addColumn<QString>("tool");
        QTest::addColumn<QString>("told");
        const int option = QAccessible::RadioButton;
        const auto row = [](const char *tool, const char16_t *name, int role, bool checked) {
            QTest::newRow(tool) << QString::fromLatin1(tool)
                                << u"%1 %2 %3"_s.arg(QString::fromUtf16(name)).arg(role).arg(checked);
        };
        row("OptType(0)", u"1 Wortel", option, false);
        row("OptType(3)", u"1 Bausteine", option, true);
        row("Option2(0)", u"Schwierigkeitsstufe 1", option, true);
        row("ChkVokal(0)", u"Kurzvokal-Kontrolle", QAccessible::CheckBox, false);
        row("Command2", u"Wortkontrolle", QAccessible::PushButton, false);
        row("lblprefix", u"Wort", QAccessible::EditableText, false);
    }
    void toolsTellNameAndState()
    {
        QFETCH(QString, tool);
        TestHouse house;
        house.lay(wortelKind, 300, 200, u"halt"_s);
        auto *widget = house.form.findChild<QWidget *>(tool);
        const QAccessibleInterface *node = QAccessible::queryAccessibleInterface(widget);
        QTEST(u"%1 %2 %3"_s.arg(node->text(QAccessible::Name)).arg(node->role()).arg(node->state().checked),
              "told");
        widget->setEnabled(false);
        QVERIFY(node->state().disabled);
    }
};
WORTEL_TEST(ReaderTreeTest)
#include "tst_reader_tree.moc"
