// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "scenes.h"

#include "stage.h"

#include "games/kernling/kernling_controls.h"
#include "games/kernling/kernling_text.h"
#include "games/paarlon/frm_memory.h"
#include "games/paarlon/memory_card.h"
#include "language/chooser/frm_choose_wortel.h"
#include "language/chooser/mark_list.h"
#include "shell/frm_main.h"
#include "shell/rooms.h"
#include "widgets/alpha_panel.h"
#include "widgets/click_label.h"
#include "widgets/dropper.h"
#include "widgets/floating_tile.h"
#include "widgets/gradient.h"
#include "widgets/main_controls.h"
#include "widgets/picture_box.h"
#include "widgets/press_button.h"
#include "widgets/store_list.h"

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QScreen>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize window{853, 600};
constexpr int pageWidth = 540; ///< pixels of a page beside the contents

void press(PressButton *tool, Qt::MouseButton button = Qt::LeftButton) { emit tool->mouseDown(button, {}); }

void mouse(QWidget *widget, QEvent::Type type, QPoint at, Qt::MouseButton button)
{
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : button;
    QMouseEvent event(type, at, widget->mapToGlobal(at), type == QEvent::MouseMove ? Qt::NoButton : button,
                      held, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

void typeWord(Stage &stage, const QString &word)
{
    const MainControls &c = stage.form().controls();
    c.Dropper1->takeFocus();
    c.Dropper1->setCaption(word);
    press(c.Command2);
    Stage::play(2600); // the report slides up, waits and sinks
}

/// A board with few tiles, as a session: kind, left, top, text.
void layTiles(Stage &stage)
{
    const QByteArray session = "[Morpheme1]\r\nType=Prefix\r\nLeft=60\r\nTop=40\r\nCaption=\"ab\"\r\n"
                               "[Morpheme2]\r\nType=Wortel\r\nLeft=130\r\nTop=40\r\nCaption=\"fahr\"\r\n"
                               "[Morpheme3]\r\nType=Suffix\r\nLeft=210\r\nTop=40\r\nCaption=\"en\"\r\n"
                               "[Morpheme4]\r\nType=Prefix\r\nLeft=80\r\nTop=100\r\nCaption=\"ab\"\r\n"
                               "[Morpheme5]\r\nType=Wortel\r\nLeft=104\r\nTop=100\r\nCaption=\"fahr\"\r\n"
                               "[Morpheme6]\r\nType=Suffix\r\nLeft=134\r\nTop=100\r\nCaption=\"en\"\r\n"
                               "[NumObjects]\r\nObjCounter=6\r\n";
    const QString path = stage.folder() + u"/bausteine.wlx"_s;
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(session) != session.size())
        qFatal("The session could not be written.");
    file.close();
    stage.form().HiddenText_Change(path);
    Stage::play(400);
    file.remove();
}

} // namespace

void scenes::wholeBoard(Stage &stage)
{
    stage.open();
    stage.keep(u"board"_s, QRect(QPoint(0, 0), stage.form().screen()->size()));
    stage.close();
}

void scenes::boardAndBand(Stage &stage)
{
    stage.open(window);
    const MainControls &c = stage.form().controls();
    stage.keep(u"spielfeld"_s, stage.form(), pageWidth);
    stage.keep(u"leiste-links"_s, *c.Picture2, 440);
    stage.keep(u"leiste-mitte"_s, *c.Picture4, 340);
    stage.keep(u"leiste-rechts"_s, *c.Picture3, 340);
    stage.close();
}

void scenes::wordOfTiles(Stage &stage)
{
    stage.open(window);
    layTiles(stage);
    const MainControls &c = stage.form().controls();
    const QPoint corner = placeOf(*c.picCanvas).topLeft();
    stage.keep(u"bausteine"_s, QRect(corner + QPoint(40, 30), QSize(220, 45)), 440);
    stage.keep(u"wort"_s, QRect(corner + QPoint(60, 90), QSize(130, 45)), 260);
    QPoint at(135, 45);
    mouse(c.picCanvas, QEvent::MouseButtonPress, at, Qt::LeftButton);
    Stage::play(200);
    stage.keep(u"ziehen"_s, QRect(corner + QPoint(40, 30), QSize(220, 45)), 440);
    mouse(c.picCanvas, QEvent::MouseButtonRelease, at, Qt::LeftButton);
    c.Dropper1->setCaption(u"abfahren"_s);
    Stage::play(200);
    stage.keep(u"wortfeld"_s, QRect(placeOf(*c.Picture4).topLeft(), QSize(c.Picture4->width(), 40)), 380);
    stage.close();
}

void scenes::menus(Stage &stage)
{
    stage.open(window);
    const MainControls &c = stage.form().controls();
    const QPoint empty(620, 60); // right of all Wortel tiles
    Stage::during([&] { mouse(c.picCanvas, QEvent::MouseButtonPress, empty, Qt::RightButton); },
                  [&] {
                      auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
                      if (menu == nullptr)
                          qFatal("No menu has opened.");
                      QRect area = placeOf(*menu);
                      for (QAction *action : menu->actions()) {
                          if (action->menu() == nullptr || !action->text().startsWith(u"Wortel"_s))
                              continue;
                          menu->setActiveAction(action);
                          Stage::play(600);
                          if (action->menu()->isVisible())
                              area = area.united(placeOf(*action->menu()));
                          break;
                      }
                      stage.keep(u"menue"_s, area, std::min(pageWidth, area.width()));
                      while (QWidget *popup = QApplication::activePopupWidget())
                          popup->close();
                  });
    stage.close();
}

void scenes::wordsAndLists(Stage &stage)
{
    stage.open(window);
    const MainControls &c = stage.form().controls();
    c.Dropper1->setCaption(u"verkaufen"_s);
    Stage::play(100);
    QTimer::singleShot(1000, [&] {
        const QRect band = placeOf(*c.Picture1);
        stage.keep(u"richtig"_s, QRect(band.left(), band.top() - 130, 430, 218), 430);
    });
    typeWord(stage, u"verkaufen"_s);
    for (const QString &word : {u"abfahren"_s, u"Abfahrt"_s, u"einkaufen"_s, u"vorlesen"_s, u"spielen"_s})
        typeWord(stage, word);

    const QRect form = placeOf(stage.form());
    press(c.Command4);
    Stage::play(500);
    QRect list = placeOf(*c.CorrectWordList);
    stage.keep(u"wortliste"_s, list.adjusted(-120, -20, 160, form.bottom() - list.bottom()));
    press(c.Command4);
    press(c.Command3);
    c.Text2->setText(u"verk"_s);
    Stage::play(500);
    list = placeOf(*c.LexiconList);
    stage.keep(u"woerterbuch"_s, list.adjusted(-120, -20, 160, form.bottom() - list.bottom()));
    stage.close();
}

void scenes::retyping(Stage &stage)
{
    stage.set(u"ScrollerRndPos"_s, u"False"_s);
    stage.set(u"ScrollerMiddlePos"_s, u"True"_s);
    stage.open(window);
    for (const QString &word : {u"abfahren"_s, u"Einkauf"_s, u"vorlesen"_s})
        typeWord(stage, word);
    const MainControls &c = stage.form().controls();
    press(c.Check4);
    Stage::play(9000); // until words have run in
    stage.keep(u"abschreiben"_s, stage.form(), pageWidth);
    press(c.Check4);
    stage.set(u"ScrollerRndPos"_s, u"True"_s);
    stage.set(u"ScrollerMiddlePos"_s, u"False"_s);
    stage.close();
}

void scenes::tip(Stage &stage)
{
    stage.open(window);
    emit stage.form().controls().Image1->clicked();
    Stage::play(500);
    stage.keep(u"tipp"_s, stage.form(), pageWidth);
    stage.close();
}

void scenes::options(Stage &stage)
{
    stage.open(window);
    Stage::during([&] { press(stage.form().controls().Command6); },
                  [&] {
                      QWidget *dialog = QApplication::activeModalWidget();
                      if (dialog == nullptr)
                          qFatal("The options have not opened.");
                      // Where the data lie on this machine says nothing to a reader.
                      dialog->findChild<QLineEdit *>(u"Text2"_s)->setText(u"text\\Hauptbausteine.Txt"_s);
                      Stage::play(300);
                      stage.keep(u"optionen"_s, *dialog, pageWidth);
                      dialog->findChild<QPushButton *>(u"cmdCancel"_s)->click();
                  });
    stage.close();
}

/// Words of two stems are found, and ten of them are drawn.
void scenes::chooser(Stage &stage)
{
    stage.open(window);
    Stage::during([&] { stage.form().rooms().wordChooser.open(); },
                  [&] {
                      auto *dialog = qobject_cast<frmChooseWortel *>(QApplication::activeModalWidget());
                      if (dialog == nullptr)
                          qFatal("The word chooser has not opened.");
                      dialog->resize(837, 430);
                      const ChooserControls &c = dialog->controls();
                      MarkList *stems = c.morphemes[ChooserControls::Stem].list;
                      std::vector<bool> marks(static_cast<std::size_t>(stems->rows().size()));
                      marks.at(2) = marks.at(4) = true;
                      stems->mark(marks);
                      Stage::play(300);
                      c.Check4->click();
                      Stage::play(3000);
                      c.Check5->click();
                      Stage::play(1000);
                      stage.keep(u"auswahl"_s, *dialog, pageWidth);
                      dialog->close();
                  });
    stage.close();
}

void scenes::stemGame(Stage &stage)
{
    stage.open(window);
    FrmKernling &game = stage.form().rooms().kernling;
    Stage::during([&] { game.openModally(); },
                  [&] {
                      game.resize(853, 470);
                      const KernlingControls &c = game.controls();
                      const QString text = u"Die Abfahrt war schön, die Wirkung groß.\n"
                                           "Wer gern einkauft, verkauft auch gern.\n"
                                           "Vorsicht: Sie bewirken etwas!"_s;
                      c.RTF->replaceText(text);
                      c.Check1->click();
                      Stage::play(300);
                      for (const QString &letters : {u"fahr"_s, u"kauf"_s, u"Wirk"_s}) {
                          c.RTF->select({static_cast<int>(text.indexOf(letters)), 4});
                          emit c.RTF->marked();
                      }
                      Stage::play(500);
                      stage.keep(u"kernling"_s, game, pageWidth);
                      game.close();
                  });
    stage.close();
}

void scenes::webPage(Stage &stage)
{
    stage.open(window);
    QTimer::singleShot(4000, [&] {
        QWidget *dialog = QApplication::activeModalWidget();
        if (dialog == nullptr || dialog->objectName() != u"FrmSaveAsWeb"_s)
            qFatal("The window of the web page has not opened.");
        dialog->findChild<QLineEdit *>(u"TxtInfile"_s)->setText(u"Stunden\\Vorsilben.wlx"_s);
        dialog->findChild<QLineEdit *>(u"txtoutfile"_s)->setText(u"Stunden\\VORSILBEN.html"_s);
        Stage::play(300);
        stage.keep(u"webseite"_s, *dialog, pageWidth);
        dialog->findChild<QPushButton *>(u"cmdClose"_s)->click();
    });
    // The session is not saved: the dialog that asks for its name comes first.
    Stage::during([&] { stage.form().saveAsWeb(); },
                  [] { qobject_cast<QDialog *>(QApplication::activeModalWidget())->reject(); });
    stage.close();
}

/// Six pairs are found, and the first card of a turn is up.
void scenes::cards(Stage &stage)
{
    stage.open(window);
    Paarlon &paarlon = stage.form().rooms().paarlon;
    paarlon.Display(wortelMemory);
    Stage::play(5000);
    const MemoryRules &rules = paarlon.window()->rules();
    const auto &cards = paarlon.window()->controls().picMorphemeCard;
    for (int first = 0; rules.PairsFound() < 6; ++first) {
        for (int second = first + 1; second < MemoryRules::cards; ++second) {
            if (rules.CardMorpheme(first) != rules.CardMorpheme(second))
                continue;
            cards[static_cast<std::size_t>(first)]->click();
            cards[static_cast<std::size_t>(second)]->click();
        }
    }
    for (int card = MemoryRules::cards - 1; !rules.FirstCardTurned(); --card)
        cards[static_cast<std::size_t>(card)]->click();
    Stage::play(300);
    stage.keep(u"paarlon"_s, *paarlon.window(), pageWidth);
    stage.close();
}
