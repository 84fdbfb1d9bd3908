// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
// What is done to the lists of the word chooser and with its words; the window itself stands in
// frm_choose_wortel.cpp.
#include "language/chooser/frm_choose_wortel.h"

#include "language/chooser/mark_list.h"
#include "language/list_loader.h"
#include "language/word_file.h"
#include "platform/boxes.h"
#include "platform/gate.h"
#include "platform/ground.h"
#include "platform/procedure.h"
#include "platform/product.h"
#include "platform/text.h"
#include "widgets/guards.h"
#include "widgets/opening_press.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace {

constexpr const char *formName = "frmChooseWortel";

/// What is asked when a morpheme is to be added.
struct AddRow
{
    const char *procedure;
    BoxStyle style;
    const char16_t *title;
    const char16_t *prompt;
};

constexpr std::array<AddRow, 3> addRows{{
    {"Check18_MouseDown", BoxStyle::Prefix, u"Präfix hinzufügen",
     u"Bitte gib ein Präfix ein.\nEs wird aber nur dann in deine Liste aufgenommen, wenn es noch nicht in "
     u"der "
     u"Präfix-Liste vorkommt!"},
    {"Check17_MouseDown", BoxStyle::Wortel, u"Wortel hinzufügen",
     u"Bitte gib ein Wortel ein.\nEs wird aber nur dann in deine Liste aufgenommen, wenn es noch nicht in "
     u"der "
     u"Wortel-liste vorkommt!"},
    {"Check19_MouseDown", BoxStyle::Suffix, u"Suffix hinzufügen",
     u"Bitte gib ein Suffix ein.\nEs wird aber nur dann in deine Liste aufgenommen, wenn es noch nicht in "
     u"der "
     u"Suffix-liste vorkommt!"},
}};

} // namespace

void frmChooseWortel::notice(const QString &text)
{
    ground_.boxes.ShowInfoBox(text, BoxSign::Info, product::name);
}

WordStore &frmChooseWortel::storeOf(const MarkList &shown)
{
    return &shown == c_.List2 ? found_ : store(Kind::Stem);
}

void frmChooseWortel::showRows(MarkList &shown)
{
    if (&shown == c_.List2)
        showFound();
    else
        shown.showRows(storeOf(shown).rows());
    showCounts();
}

// The morphemes
// ------------------------------------------------------------------------------------------------------------

/// A blank around it would keep a morpheme from being found.
void frmChooseWortel::addMorpheme(Kind kind)
{
    const AddRow &row = addRows[kind];
    Procedure step{ground_.log, row.procedure, formName};
    const QPoint corner = list(kind).mapToGlobal(QPoint(0, 0));
    QString typed;
    step([&] {
        typed = Trim(ground_.boxes.ShowWordBox(QString::fromUtf16(row.prompt), row.style, {},
                                               QString::fromUtf16(row.title), std::max(0, corner.x()),
                                               std::max(0, corner.y())));
    });
    if (typed.isEmpty() || store(kind).contains(typed))
        return;
    step([&] { store(kind).add(typed); });
    list(kind).showRows(store(kind).rows());
    list(kind).scrollToBottom();
    showCounts();
}

void frmChooseWortel::loadStems()
{
    Procedure step{ground_.log, "Check17_MouseDown", formName};
    QStringList paths;
    step([&] { paths = loader_.askForStemLists(); });
    if (paths.isEmpty())
        return;
    store(Kind::Stem).clear();
    for (const QString &path : paths)
        step([&] { loader_.FillChooseWortelList(store(Kind::Stem), path); });
    showRows(list(Kind::Stem));
}

// The words
// ------------------------------------------------------------------------------------------------------------

void frmChooseWortel::Check20_Click()
{
    Procedure step{ground_.log, "Check20_MouseDown", formName};
    const Hourglass glass;
    step([&] { setFound(withoutDuplicates(found_.rows())); });
}

void frmChooseWortel::Check21_Click()
{
    Procedure step{ground_.log, "Check21_MouseDown", formName};
    step([&] { setFound({}); });
}

void frmChooseWortel::handOver(const QStringList &words, const QString &noneText, const QString &limitText)
{
    if (words.isEmpty()) {
        notice(noneText);
    } else if (words.size() >= wordLimit) {
        notice(limitText);
    } else {
        chosen_ = words;
        accept();
    }
}

void frmChooseWortel::Check1_Click()
{
    Procedure step{ground_.log, "Check1_MouseDown", formName};
    step([&] {
        handOver(found_.rows(), u"Es gibt keine Wörter zum Abschreiben"_s,
                 u"Es können max. 1024 Wörter benutzt werden."_s);
    });
}

void frmChooseWortel::Check3_Click()
{
    Procedure step{ground_.log, "Check3_MouseDown", formName};
    step([&] {
        handOver(c_.List2->marked(), u"Es wurden keine Wörter ausgewählt"_s,
                 u"Es können max. 1024 Wörter benutzt werden"_s);
    });
}

// The menus of the two lists
// ------------------------------------------------------------------------------------------------------------

void frmChooseWortel::openMenu(MarkList &shown, const QPoint &position)
{
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto add = [&](const char *name, const QString &caption, auto act) {
        QAction *action = menu->addAction(caption);
        action->setObjectName(QLatin1String(name));
        connect(action, &QAction::triggered, this, once([act, &shown] { act(shown); }));
    };
    const bool isWords = &shown == c_.List2;
    add("mnuSelectAll", u"Alle markieren"_s, [](MarkList &list) { list.markAll(); });
    add("mnuUnSelectAll", u"Markierung rückgängig"_s, [](MarkList &list) { list.clearMarks(); });
    menu->addSeparator();
    add("mnuCopySelWords", isWords ? u"Markierte Wörter kopieren"_s : u"Markierte Wortele kopieren"_s,
        [this](const MarkList &list) { mnuCopySelWords(list); });
    add("mnuSaveSelWords", isWords ? u"Markierte Wörter speichern"_s : u"Markierte Wortele speichern"_s,
        [this](const MarkList &list) { mnuSaveSelWords(list); });
    menu->addSeparator();
    add("mnuDelWortel", isWords ? u"Markierte Wörter entfernen"_s : u"Markierte Wortele entfernen"_s,
        [this](MarkList &list) { mnuDelWortel(list); });
    add("mnuClearList", u"Liste löschen"_s, [this](MarkList &list) { mnuClearList(list); });
    menu->popup(OpeningPress::placeFor(*menu, position));
}

void frmChooseWortel::mnuClearList(MarkList &shown)
{
    Procedure step{ground_.log, "mnuClearList_Click", formName};
    step([&] { storeOf(shown).clear(); });
    showRows(shown);
}

void frmChooseWortel::mnuDelWortel(MarkList &shown)
{
    Procedure step{ground_.log, "mnuDelWortel_Click", formName};
    step([&] {
        const QStringList rows = shown.unmarked();
        storeOf(shown).clear();
        storeOf(shown).addAll(rows);
    });
    showRows(shown);
}

/// False, with a word to the user, if there is nothing that could be copied or saved.
bool frmChooseWortel::hasMarks(const MarkList &shown, const QString &noneText, const QString &unmarkedText)
{
    if (shown.rows().isEmpty())
        notice(noneText);
    else if (shown.markedCount() == 0)
        notice(unmarkedText);
    return shown.markedCount() > 0;
}

void frmChooseWortel::mnuCopySelWords(const MarkList &shown)
{
    Procedure step{ground_.log, "mnuCopySelWords_Click", formName};
    step([&] {
        if (hasMarks(shown, u"No words to copy"_s, u"Please select word(s) to copy"_s))
            QGuiApplication::clipboard()->setText(shown.marked().join(u"\r\n"_s) + u"\r\n"_s);
    });
}

void frmChooseWortel::mnuSaveSelWords(const MarkList &shown)
{
    Procedure step{ground_.log, "mnuSaveSelWords_Click", formName};
    step([&] {
        if (hasMarks(shown, u"No words to save"_s, u"Please select word(s) to save"_s))
            saveTo(step, shown.marked());
    });
}

/// All words found, marked or not.
void frmChooseWortel::Save_Result()
{
    Procedure step{ground_.log, "Save_Result", formName};
    step([&] {
        if (found_.isEmpty())
            notice(u"Es gibt noch keine Ausgewählte Wörter Wörter zum Speichern !"_s);
        else
            saveTo(step, found_.rows());
    });
}

void frmChooseWortel::saveTo(Procedure &step, const QStringList &words)
{
    saveWords(ground_, step, words,
              {u"Ausgewählte Wörter speichern"_s, product::faultTitle,
               u"Could not write the selected words to file."_s});
}
