// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/main_controls.h"

#include "widgets/accessible_tools.h"
#include "widgets/alpha_panel.h"
#include "widgets/announce.h"
#include "widgets/click_label.h"
#include "widgets/colour.h"
#include "widgets/dropper.h"
#include "widgets/floating_tile.h"
#include "widgets/gradient.h"
#include "widgets/msg_scroller.h"
#include "widgets/picture_box.h"
#include "widgets/press_button.h"
#include "widgets/progress_bar.h"
#include "widgets/store_list.h"

#include <QButtonGroup>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QMargins>

#include <algorithm>

namespace {

// The band is drawn for this width; on a wider window its controls grow in width with it, up to the largest
// factor.
constexpr int designWidth = 632;
constexpr double largestFactor = 1.5;
constexpr int bandHeight = 88;
constexpr int lowerEdgeHeight = 14;

constexpr int firstRow = 4;
constexpr int secondRow = 38;
constexpr int rowHeight = 32;
constexpr int statusRow = 73;
constexpr int statusHeight = 14;
constexpr QMargins cancelReach{4, 7, 4, 0}; // round the "X": a finger needs more than one sees

using C = MainControls;

/// One row a control of the band: where it stands in its panel (pixels at the design width), what it says,
/// and its picture.
struct ControlRow
{
    QWidget *(*get)(const C &);
    const char *name;
    int x, y, width, height;
    const char16_t *caption;
    const char16_t *toolTip;
    const char *icon;
};

#define CONTROL(member) [](const C &c) -> QWidget * { return c.member; }, #member
constexpr ControlRow bandRows[] = {
    // The filters stand in the order of a word: prefix, Wortel, suffix.
    {[](const C &c) -> QWidget * { return c.OptType[1]; }, "OptType(1)", 4, firstRow, 46, rowHeight, u"0",
     u"nur Präfix zeigen / Präfix-Liste zeigen", nullptr},
    {[](const C &c) -> QWidget * { return c.OptType[0]; }, "OptType(0)", 52, firstRow, 46, rowHeight, u"0",
     u"nur Wortel zeigen / Wortel-Liste zeigen", nullptr},
    {[](const C &c) -> QWidget * { return c.OptType[2]; }, "OptType(2)", 100, firstRow, 46, rowHeight, u"0",
     u"nur Suffix zeigen / Suffix-Liste zeigen", nullptr},
    {[](const C &c) -> QWidget * { return c.OptType[3]; }, "OptType(3)", 148, firstRow, 46, rowHeight, u"0",
     u"Präfix+Wortel+Suffix zeigen / Listen zeigen", nullptr},
    {CONTROL(Check1), 198, firstRow, 48, rowHeight, u"Alle", u"", nullptr},
    {CONTROL(Text1), 4, secondRow, 30, rowHeight, u"", u"Anzahl Wortel", nullptr},
    {CONTROL(Check2), 36, secondRow, 54, rowHeight, u"Wortel", u"Wortel einfügen / Wortel-Liste laden",
     nullptr},
    {[](const C &c) -> QWidget * { return c.Option1[0]; }, "Option1(0)", 92, secondRow, 30, rowHeight, u"",
     u"Ziehmodus Wortkontrolle", ":/icons/drag-word-check.svg"},
    {[](const C &c) -> QWidget * { return c.Option1[1]; }, "Option1(1)", 123, secondRow, 30, rowHeight, u"",
     u"normaler Ziehmodus", ":/icons/drag-normal.svg"},
    {CONTROL(Command6), 154, secondRow, 30, rowHeight, u"", u"Optionen", ":/icons/options.svg"},
    {CONTROL(Command1), 185, secondRow, 30, rowHeight, u"", u"Hilfe für Wortel", ":/icons/help.svg"},
    {CONTROL(CmdMenu), 216, secondRow, 30, rowHeight, u"", u"Menü", ":/icons/menu-button.svg"},

    {CONTROL(Dropper1), 2, firstRow, 114, rowHeight, u"", u"", nullptr},
    {CONTROL(Command2), 119, firstRow, 33, rowHeight, u"", u"Wortkontrolle / Wortsuche",
     ":/icons/word-check.svg"},
    {CONTROL(Command5), 155, firstRow, 33, rowHeight, u"", u"Löschen / Großschreibung", ":/icons/erase.svg"},
    {CONTROL(Command3), 2, secondRow, 40, rowHeight, u"", u"Wörterbuch zeigen / Wörterbuch laden",
     ":/icons/dictionary.svg"},
    {CONTROL(Command4), 45, secondRow, 40, rowHeight, u"", u"Wörterliste zeigen / Wörterliste speichern",
     ":/icons/check-mark.svg"},
    {CONTROL(Label6), 89, secondRow, 99, rowHeight, u"Richtige Wörter", u"", nullptr},

    {CONTROL(Check3), 2, firstRow, 40, rowHeight, u"", u"Spiel starten / Bestenliste zeigen",
     ":/icons/stopwatch.svg"},
    {[](const C &c) -> QWidget * { return c.Option2[0]; }, "Option2(0)", 45, firstRow, 26, rowHeight, u"1",
     u"Schwierigkeitsstufe 1", nullptr},
    {[](const C &c) -> QWidget * { return c.Option2[1]; }, "Option2(1)", 73, firstRow, 26, rowHeight, u"2",
     u"Schwierigkeitsstufe 2", nullptr},
    {[](const C &c) -> QWidget * { return c.Option2[2]; }, "Option2(2)", 101, firstRow, 26, rowHeight, u"3",
     u"Schwierigkeitsstufe 3", nullptr},
    {CONTROL(Label1), 130, firstRow, 24, rowHeight, u"", u"", nullptr},
    {CONTROL(Image1), 156, firstRow, 32, rowHeight, u"", u"Rechtschreib-Tipp zeigen", ":/icons/bulb.svg"},
    {CONTROL(Check4), 2, secondRow, 40, rowHeight, u"",
     u"Abschreiben: Wörterliste / Wörterbuch (+Umschalt: Unsinnswörter)", ":/icons/copy-down.svg"},
    {[](const C &c) -> QWidget * { return c.ChkVokal[0]; }, "ChkVokal(0)", 45, secondRow, 70, rowHeight,
     u"kurz", u"Kurzvokal-Kontrolle", ":/icons/short-vowel.svg"},
    {[](const C &c) -> QWidget * { return c.ChkVokal[1]; }, "ChkVokal(1)", 118, secondRow, 70, rowHeight,
     u"lang", u"Langvokal-Kontrolle", ":/icons/long-vowel.svg"},

    {CONTROL(Label3), 86, statusRow, 160, statusHeight, u"", u"", nullptr},
    {CONTROL(GameProgress), 252, statusRow, 352, statusHeight, u"", u"", nullptr},
    {CONTROL(Label4), 608, statusRow - 2, 20, statusHeight + 3, u"X", u"Abbrechen", nullptr},
};
#undef CONTROL

/// Where a panel of the band begins and how wide it is, at the design width. `align`: 0 left, 1 middle, 2
/// right.
struct PanelRow
{
    QWidget *C::*panel;
    const char *name;
    const char16_t *spoken;
    int left, width, align;
};

constexpr PanelRow panelRows[] = {
    {&C::Picture2, "Picture2", u"Bausteine", 0, 250, 0},
    {&C::Picture4, "Picture4", u"Wort", 250, 190, 1},
    {&C::Picture3, "Picture3", u"Spiel", 440, 192, 2},
};

QWidget *makePanel(QWidget *parent, const PanelRow &row)
{
    auto *panel = new QWidget(parent);
    panel->setObjectName(QLatin1String(row.name));
    panel->setAccessibleName(QString::fromUtf16(row.spoken));
    return panel;
}

template <typename Widget> Widget *make(QWidget *parent, const char *name)
{
    auto *widget = new Widget(parent);
    widget->setObjectName(QLatin1String(name));
    return widget;
}

QLabel *makeLabel(QWidget *parent, const char *name)
{
    auto *label = make<QLabel>(parent, name);
    label->setTextFormat(Qt::PlainText);
    return label;
}

StoreList *makeList(QWidget *form, const char *name, const QString &spoken, int width, int height)
{
    auto *list = make<StoreList>(form, name);
    list->setAccessibleName(spoken);
    list->resize(width, height);
    list->hide();
    return list;
}

PressButton *makeChoice(QWidget *panel, const char *name)
{
    auto *button = make<PressButton>(panel, name);
    button->setCheckable(true);
    return button;
}

void makeBoard(C &c)
{
    c.picCanvas = make<PictureBox>(c.form, "picCanvas");
    c.picCanvas->setAccessibleName(QStringLiteral("Spielfeld"));
    c.picCanvas->setMouseTracking(true);
    c.BtnMove1 = make<FloatingTile>(c.form, "BtnMove1");
    c.BtnMove1->hide();
    c.lblMove = makeLabel(c.picCanvas, "lblMove");
    c.lblMove->hide();

    c.PicAlpha = make<AlphaPanel>(c.form, "PicAlpha");
    c.PicAlpha->setAccessibleName(QStringLiteral("Tipp schließen"));
    c.PicAlpha->hide();
    c.AlphaText = makeLabel(c.PicAlpha, "AlphaText");
    c.AlphaText->setWordWrap(true);
    c.Label5 = make<ClickLabel>(c.PicAlpha, "Label5");
    c.Label5->setText(QStringLiteral("Schließen"));
}

void makeTilePanel(C &c)
{
    c.OptType[1] = makeChoice(c.Picture2, "OptType(1)");
    c.OptType[0] = makeChoice(c.Picture2, "OptType(0)");
    c.OptType[2] = makeChoice(c.Picture2, "OptType(2)");
    c.OptType[3] = makeChoice(c.Picture2, "OptType(3)");
    c.OptType[0]->setFace(toQColor(colours::wortelBack), toQColor(colours::wortelText));
    c.OptType[1]->setFace(toQColor(colours::prefixBack), toQColor(colours::prefixText));
    c.OptType[2]->setFace(toQColor(colours::suffixBack), toQColor(colours::suffixText));
    c.OptType[3]->setFace(QColor(236, 233, 216), Qt::black);
    static constexpr std::array spoken{u"%1 Wortel", u"%1 Präfix", u"%1 Suffix", u"%1 Bausteine"};
    for (std::size_t kind = 0; kind < spoken.size(); ++kind)
        c.OptType[kind]->setSpokenCaption(QString::fromUtf16(spoken[kind]));
    c.Check1 = makeChoice(c.Picture2, "Check1");
    c.Check1->setAccessibleName(QStringLiteral("Alle Wortel der Liste"));
    c.Text1 = make<QLineEdit>(c.Picture2, "Text1");
    c.Text1->setAlignment(Qt::AlignCenter);
    c.Check2 = make<PressButton>(c.Picture2, "Check2");
    c.Check2->setFace(toQColor(colours::wortelBack), toQColor(colours::wortelText));
    c.Option1[0] = makeChoice(c.Picture2, "Option1(0)");
    c.Option1[1] = makeChoice(c.Picture2, "Option1(1)");
    c.Option1[1]->setChecked(true);
    c.Command6 = make<PressButton>(c.Picture2, "Command6");
    c.Command1 = make<PressButton>(c.Picture2, "Command1");
    c.CmdMenu = make<PressButton>(c.Picture2, "CmdMenu");
}

void makeWordPanel(C &c)
{
    c.Dropper1 = make<Dropper>(c.Picture4, "Dropper1");
    c.Dropper1->setAccessibleName(QStringLiteral("Wortfeld"));
    c.Command2 = make<PressButton>(c.Picture4, "Command2");
    c.Command5 = make<PressButton>(c.Picture4, "Command5");
    c.Command3 = make<PressButton>(c.Picture4, "Command3");
    c.Command4 = make<PressButton>(c.Picture4, "Command4");
    c.Label6 = makeLabel(c.Picture4, "Label6");
}

void makeGamePanel(C &c)
{
    c.Check3 = make<PressButton>(c.Picture3, "Check3");
    auto *levels = new QButtonGroup(c.Picture3);
    for (PressButton *&level : c.Option2) {
        level = makeChoice(c.Picture3, "Option2");
        levels->addButton(level);
    }
    c.Option2[0]->setChecked(true);
    c.Label1 = makeLabel(c.Picture3, "Label1");
    c.Label1->setAlignment(Qt::AlignCenter);
    c.Label1->hide();
    speakAs(*c.Label1, QStringLiteral("Gesammelte Wörter: %1"));
    c.Image1 = make<ClickLabel>(c.Picture3, "Image1");
    c.Check4 = make<PressButton>(c.Picture3, "Check4");
    for (std::size_t kind = 0; kind < c.ChkVokal.size(); ++kind)
        c.ChkVokal[kind] = makeChoice(c.Picture3, "ChkVokal");
}

void makeStatusLine(C &c)
{
    c.Label3 = makeLabel(c.Picture1, "Label3");
    c.GameProgress = make<GameProgressBar>(c.Picture1, "GameProgress");
    c.GameProgress->hide();
    c.Label4 = make<ClickLabel>(c.Picture1, "Label4"); // in front of the panels: it reaches into one
    c.Label4->setAlignment(Qt::AlignCenter);
    c.Label4->setStyleSheet(
        QStringLiteral("background: #c00000; color: white; font-weight: bold; border-radius: 4px; "
                       "margin: %1px %2px %3px %4px")
            .arg(cancelReach.top())
            .arg(cancelReach.right())
            .arg(cancelReach.bottom())
            .arg(cancelReach.left()));
    c.Label4->hide();
    c.Label2 = make<ClickLabel>(c.form, "Label2");
    c.Label2->setText(QStringLiteral("NORDVEKT"));
    c.Label2->setAccessibleName(QStringLiteral("NORDVEKT: Über Wortel-Meister"));
    c.Label2->setStyleSheet(QStringLiteral("color: #00406a; font-size: 9px; padding-left: 4px"));
}

void makeLists(C &c)
{
    const QString noteStyle =
        QStringLiteral("background: #ffffe8; color: #1b2a4a; border: 2px solid #1b2a4a; border-radius: 6px; "
                       "padding: 10px; font-size: 14px");
    c.WortelList = makeList(c.form, "WortelList", QStringLiteral("Wortel-Liste"), 84, C::morphemeListHeight);
    c.PrefixList = makeList(c.form, "PrefixList", QStringLiteral("Präfix-Liste"), 66, C::morphemeListHeight);
    c.SuffixList = makeList(c.form, "SuffixList", QStringLiteral("Suffix-Liste"), 66, C::morphemeListHeight);
    c.LexiconList = makeList(c.form, "LexiconList", QStringLiteral("Wörterbuch"), 190, 260);
    c.CorrectWordList = makeList(c.form, "CorrectWordList", QStringLiteral("Wörterliste"), 190, 260);
    c.LexiconList->setToolTip(QStringLiteral("Rechtsklick: Menü zeigen"));
    c.CorrectWordList->setToolTip(QStringLiteral("Rechtsklick: Menü zeigen"));
    c.Text2 = make<QLineEdit>(c.form, "Text2");
    c.Text2->setAccessibleName(QStringLiteral("Wort im Wörterbuch suchen"));
    c.Text2->hide();
    c.Scroller = make<MsgScroller>(c.form, "MsgScroller");
    c.Scroller->setBackColor(Qt::white);
    c.Scroller->setForeColor(Qt::black);
    c.Scroller->resize(c.Scroller->sizeHint());
    c.Scroller->hide();
    c.txtWelcomeMsg = makeLabel(c.form, "txtWelcomeMsg");
    c.txtWelcomeMsg->setStyleSheet(noteStyle);
    c.txtWelcomeMsg->hide();
    c.TxtWordHint = makeLabel(c.form, "TxtWordHint");
    c.TxtWordHint->setAlignment(Qt::AlignCenter);
    c.TxtWordHint->setStyleSheet(noteStyle);
    c.TxtWordHint->hide();
    for (QLabel *notice : {c.txtWelcomeMsg, c.TxtWordHint, c.AlphaText})
        announceWhenShown(*notice);
}

void dress(const ControlRow &row, QWidget *widget)
{
    widget->setObjectName(QLatin1String(row.name));
    const QString caption = QString::fromUtf16(row.caption);
    const QString toolTip = QString::fromUtf16(row.toolTip);
    widget->setToolTip(toolTip);
    if (widget->accessibleName().isEmpty())
        widget->setAccessibleName(toolTip.isEmpty() ? caption : toolTip);
    if (auto *button = qobject_cast<PressButton *>(widget)) {
        button->setText(caption);
        if (row.icon != nullptr)
            button->setIcon(QIcon(QLatin1String(row.icon)));
    } else if (auto *label = qobject_cast<QLabel *>(widget)) {
        if (row.icon != nullptr)
            label->setPixmap(QIcon(QLatin1String(row.icon)).pixmap(rowHeight - 4));
        else
            label->setText(caption);
    }
}

/// The Tab key goes over the window as the eye does: the board, what lies open on it, then the band, panel by
/// panel.
void orderForKeys(const C &c)
{
    QWidget *last = c.picCanvas;
    const auto next = [&last](QWidget *widget) {
        QWidget::setTabOrder(last, widget);
        last = widget;
    };
    for (QWidget *open : {static_cast<QWidget *>(c.Label5), static_cast<QWidget *>(c.PrefixList),
                          static_cast<QWidget *>(c.WortelList), static_cast<QWidget *>(c.SuffixList),
                          static_cast<QWidget *>(c.Text2), static_cast<QWidget *>(c.LexiconList),
                          static_cast<QWidget *>(c.CorrectWordList)})
        next(open);
    for (const ControlRow &row : bandRows)
        if (row.get(c)->focusPolicy() != Qt::NoFocus || row.get(c) == c.Dropper1)
            next(row.get(c));
    next(c.Label2);
}

} // namespace

MainControls makeMainControls(QWidget *form)
{
    MainControls c;
    c.form = form;
    makeBoard(c);
    c.Picture1 = make<GradientPanel>(form, "Picture1");
    c.Picture1->setAccessibleName(QStringLiteral("Werkzeuge"));
    for (const PanelRow &row : panelRows)
        c.*row.panel = makePanel(c.Picture1, row);
    makeTilePanel(c);
    makeWordPanel(c);
    makeGamePanel(c);
    makeStatusLine(c);
    makeLists(c);
    for (const ControlRow &row : bandRows)
        dress(row, row.get(c));
    orderForKeys(c);
    return c;
}

void layOutMainControls(const MainControls &c, int width, int height)
{
    const double factor = std::clamp(static_cast<double>(width) / designWidth, 1.0, largestFactor);
    const auto scaled = [factor](int pixels) { return static_cast<int>(pixels * factor); };

    c.picCanvas->setGeometry(0, 0, width, std::max(1, height - lowerEdgeHeight));
    c.Picture1->setGeometry(0, height - bandHeight, width, bandHeight);
    for (const PanelRow &row : panelRows) {
        const int panelWidth = scaled(row.width);
        const int left = row.align == 0   ? 0
                         : row.align == 1 ? std::max(scaled(row.left), (width - panelWidth) / 2)
                                          : std::max(scaled(row.left), width - panelWidth);
        (c.*row.panel)->setGeometry(left, 0, panelWidth, statusRow - 1);
    }
    for (const ControlRow &row : bandRows)
        row.get(c)->setGeometry(scaled(row.x), row.y, scaled(row.width), row.height);
    c.Label4->setGeometry(c.Label4->geometry() + cancelReach);
    c.Label2->setGeometry(0, height - lowerEdgeHeight, 82, lowerEdgeHeight);
    c.Label2->raise();
}
