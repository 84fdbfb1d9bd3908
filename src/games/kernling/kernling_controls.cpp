// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/kernling/kernling_controls.h"

#include "games/kernling/kernling_text.h"
#include "games/kernling/time_sign.h"
#include "games/kernling/word_list_box.h"
#include "persistence/settings/option_fields.h"
#include "platform/text_masks.h"
#include "widgets/accessible_tools.h"
#include "widgets/click_label.h"
#include "widgets/gradient.h"
#include "widgets/key_order.h"
#include "widgets/press_button.h"
#include "widgets/progress_bar.h"
#include "widgets/store_list.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QSplitter>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using C = KernlingControls;

/// One row a button: what it says, and its picture.
struct ButtonRow
{
    PressButton *C::*member;
    const char *name;
    const char16_t *caption;
    const char16_t *toolTip;
    const char *icon = nullptr;
};

constexpr ButtonRow buttonRows[] = {
    {&C::Command3, "Command3", u"Einfügen", u"Wörter in die Liste einfügen"},
    {&C::cmdUp, "cmdUp", u"▲", u"Wort nach oben (Alt+Pfeil nach oben)"},
    {&C::cmdDown, "cmdDown", u"▼", u"Wort nach unten (Alt+Pfeil nach unten)"},
    {&C::Command9, "Command9", u"Mischen", u"Wörter der Liste mischen"},
    {&C::Command13, "Command13", u"Löschen", u"Alle Wörter der Liste löschen"},
    {&C::Command14, "Command14", u"Markierung rückgängig", u"Kein Wort der Liste ausgewählt"},
    {&C::Command7, "Command7", u"Zufällige Wörter auswählen", u"So viele Wörter der Liste auswählen"},
    {&C::Command11, "Command11", u"Alle → Text", u"Alle Wörter der Liste in den Text"},
    {&C::Command12, "Command12", u"Auswahl → Text", u"Ausgewählte Wörter der Liste in den Text"},
    {&C::Command15, "Command15", u"Wortliste löschen", u"Wortliste von Klotar löschen"},
    {&C::Command5, "Command5", u"Laden", u"Text auswählen", ":/icons/load.svg"},
    {&C::Command10, "Command10", u"", u"Spiel starten / Bestenliste zeigen", ":/icons/stopwatch.svg"},
    {&C::Check7, "Check7", u"Wortstamm Prüfung", u"Markierte Buchstaben prüfen (Strg+Eingabetaste)"},
    {&C::Command8, "Command8", u"Suche ", u"Einen Wortstamm im gesamten Text suchen"},
    {&C::Command4, "Command4", u"Löschen", u"Text löschen"},
    {&C::cmdUnHighlight, "cmdUnHighlight", u"Markierung rückgängig",
     u"Farbe der markierten Buchstaben entfernen"},
    {&C::cmdResetColors, "cmdResetColors", u"Alle Markierungen rückgängig", u"Alle Farben im Text entfernen"},
    {&C::cmdSmaller, "cmdSmaller", u"A−", u"Buchstaben kleiner (Strg+Minus)"},
    {&C::cmdLarger, "cmdLarger", u"A+", u"Buchstaben größer (Strg+Plus)"},
    {&C::Command6, "Command6", u"", u"Optionen", ":/icons/options.svg"},
    {&C::Command1, "Command1", u"Alle entfernen", u"Alle richtigen Wortstämme entfernen"},
    {&C::Command2, "Command2", u"Alle entfernen", u"Alle falschen Buchstaben entfernen"},
    {&C::Check1, "Check1", u"<", u"Wortstamm-Liste anzeigen"},
};

constexpr const char16_t *fillTypes[] = {u"Wortliste",       u"Wörterbuch",
                                         u"Unsinnswörter",   u"Buchstabenmix",
                                         u"Morphemscramble", u"Wörter von Morpheme auf dem Bildschirm"};
constexpr std::size_t letterMix = 3;

constexpr int longestWordOffered = 25;
constexpr int gap = 4;       ///< pixels
constexpr int signSize = 30; ///< pixels

constexpr QSize designSize{853, 450};
constexpr int smallLetters = 12; ///< pixels, at the design size
constexpr int largeLetters = 20; ///< pixels, at most

// In letter sizes
constexpr double sideWidth = 20.3; ///< of the panel on the left
constexpr double stemWidth = 6.4;  ///< of the panel on the right
constexpr double numberWidth = 3.7;
constexpr double lengthWidth = 5;
constexpr double stripWidth = 1.7; ///< of the strip that opens the panel on the right
constexpr double titleShare = 0.65;
constexpr double buttonHeight = 2.2;
constexpr double textSize = 1.4;
constexpr double answerSize = 1.1;

/// Half of the title stands over the frame.
const QString groupStyle = uR"(
QGroupBox { border: 1px solid #9cc3f5; border-radius: 6px; margin-top: %1px; padding-top: %1px; background: rgba(255, 255, 255, 190); }
QGroupBox::title { subcontrol-origin: margin; left: 10px; padding: 0 6px; color: #081c5c; background: #ffffff; border: 1px solid #9cc3f5; border-radius: 4px; }
)"_s;

template <typename Widget, typename... Arguments>
Widget *make(QWidget *parent, const char *name, const QString &accessibleName, Arguments &&...arguments)
{
    auto *widget = new Widget(std::forward<Arguments>(arguments)..., parent);
    widget->setObjectName(QLatin1String(name));
    widget->setAccessibleName(accessibleName);
    return widget;
}

QLabel *makeLabel(QWidget *parent, const char *name, const QString &text)
{
    auto *label = make<QLabel>(parent, name, QString(), text);
    label->setTextFormat(Qt::PlainText);
    return label;
}

QLineEdit *makeNumber(QWidget *parent, const char *name, const QString &accessibleName, const QString &value)
{
    auto *box = make<QLineEdit>(parent, name, accessibleName, value);
    new clsTextBox(box, Integer_Pos);
    box->setAlignment(Qt::AlignRight);
    box->setMaxLength(5);
    return box;
}

void makeButtons(C &c)
{
    for (const ButtonRow &row : buttonRows) {
        auto *button = make<PressButton>(c.form, row.name, QString::fromUtf16(row.caption).trimmed());
        const QString toolTip = QString::fromUtf16(row.toolTip);
        button->setText(QString::fromUtf16(row.caption));
        button->setToolTip(toolTip);
        if (button->text().size() <= 2)
            button->setAccessibleName(toolTip);
        if (row.icon != nullptr)
            button->setIcon(QIcon(QLatin1String(row.icon)));
        // Reached with the tab key; a click leaves the keyboard and the marking where they are.
        button->setFocusPolicy(Qt::TabFocus);
        c.*row.member = button;
    }
}

QGroupBox *makeGroup(QWidget *parent, const char *name, const QString &title)
{
    auto *group = make<QGroupBox>(parent, name, title, title);
    return group;
}

QHBoxLayout *lineOf(std::initializer_list<QWidget *> widgets)
{
    auto *line = new QHBoxLayout;
    line->setSpacing(gap);
    for (QWidget *widget : widgets)
        widget == nullptr ? line->addStretch(1) : line->addWidget(widget);
    return line;
}

QWidget *makeWordGroup(C &c, QWidget *parent)
{
    QGroupBox *group = makeGroup(parent, "FrameWords", u"Wörter einfügen"_s);
    auto *column = new QVBoxLayout(group);
    column->setContentsMargins(8, 4, 8, 6);
    column->setSpacing(gap);
    c.Text4 = makeNumber(group, "Text4", u"Buchstabenmix: Wortlänge"_s, u"0"_s);
    c.Text4->setToolTip(u"Wortlänge beim Buchstabenmix, 0: nicht verlängern"_s);
    for (std::size_t type = 0; type < c.OptFilltype.size(); ++type) {
        const QString caption = QString::fromUtf16(fillTypes[type]);
        c.OptFilltype[type] = new CaptionOption(caption, group);
        c.OptFilltype[type]->setObjectName(u"OptFilltype(%1)"_s.arg(type));
        if (type != letterMix) {
            column->addWidget(c.OptFilltype[type]);
            continue;
        }
        QHBoxLayout *line = lineOf({c.OptFilltype[type]});
        line->setStretch(0, 1);
        line->addWidget(makeLabel(group, "Label4", u"Wortlänge"_s));
        line->addWidget(c.Text4);
        column->addLayout(line);
    }
    c.OptFilltype[0]->setChecked(true);
    for (PressButton *button : {c.Command3, c.Command7, c.Command9, c.Command11, c.Command12, c.Command13,
                                c.Command14, c.Command15})
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    column->addLayout(lineOf({c.Command3, c.Command15}));
    c.List1 = make<WordListBox>(group, "List1", u"Arbeitsliste"_s);
    c.List1->setMinimumHeight(48);
    column->addWidget(c.List1, 1);
    column->addLayout(lineOf({c.Command9, c.Command13, c.cmdUp, c.cmdDown}));
    c.Text3 = makeNumber(group, "Text3", u"Anzahl der zufälligen Wörter"_s, u"10"_s);
    QHBoxLayout *draw = lineOf({c.Text3, c.Command7});
    draw->setStretch(1, 1);
    column->addLayout(draw);
    column->addWidget(c.Command14);
    column->addLayout(lineOf({c.Command11, c.Command12}));
    return group;
}

QWidget *makeFileGroup(C &c, QWidget *parent)
{
    QGroupBox *group = makeGroup(parent, "FrameFile", u"Text auswählen"_s);
    c.Check8 = make<QCheckBox>(group, "Check8", u"In einzelne Wörter aufteilen"_s,
                               u"In einzelne Wörter aufteilen"_s);
    c.Check10 = make<QCheckBox>(group, "Check10", u"Mischen"_s, u"Mischen"_s);
    QLabel *caption = makeLabel(group, "Label2", u"Wortlänge (Min. 20)"_s);
    c.cboWordLen = make<QComboBox>(group, "cboWordLen", u"Wortlänge (Min. 20)"_s);
    c.cboWordLen->setEditable(true);
    c.cboWordLen->setToolTip(u"0 bedeutet: alle Wörter"_s);
    if (c.cboWordLen->lineEdit() != nullptr)
        c.cboWordLen->lineEdit()->setAccessibleName(c.cboWordLen->accessibleName());
    c.cboWordLen->setInsertPolicy(QComboBox::NoInsert);
    c.cboWordLen->addItem(u"0"_s);
    for (int length = 2; length <= longestWordOffered; ++length)
        c.cboWordLen->addItem(QString::number(length));
    c.cboWordLen->lineEdit()->setMaxLength(5);
    new clsTextBox(c.cboWordLen->lineEdit(), Integer_Pos);
    caption->setBuddy(c.cboWordLen);
    auto *line = lineOf({c.Command5, c.Check8, caption, c.cboWordLen, c.Check10, nullptr});
    line->setContentsMargins(8, 2, 8, 5);
    group->setLayout(line);
    return group;
}

QWidget *makeTextGroup(C &c, QWidget *parent)
{
    QGroupBox *group = makeGroup(parent, "FrameText", u"Text"_s);
    c.textGroup = group;
    c.Picture2 = make<TimeSign>(group, "Picture2", u"Das Spiel läuft"_s);
    c.Picture2->hide();
    c.OptManualHighlight = make<QRadioButton>(group, "OptManualHighlight", u"Manual"_s, u"Manual"_s);
    c.OptManualHighlight->setToolTip(u"Erst markieren, dann die Taste zur Prüfung drücken"_s);
    c.OptAutoHighlight = make<QRadioButton>(group, "OptAutoHighlight", u"Auto"_s, u"Auto"_s);
    c.OptAutoHighlight->setToolTip(u"Jede Markierung wird gleich geprüft"_s);
    c.OptAutoHighlight->setChecked(true);
    for (QRadioButton *option : {c.OptManualHighlight, c.OptAutoHighlight})
        option->setFocusPolicy(Qt::TabFocus);
    c.RTF = make<KernlingText>(group, "RTF", u"Text"_s);
    c.RTF->setMinimumHeight(60);
    auto *status = new QWidget(group);
    c.FillProgress = make<GameProgressBar>(status, "FillProgress", u"Fortschritt"_s);
    c.FillProgress->setMinimumHeight(22);
    c.FillProgress->hide();
    c.Label9 = make<ClickLabel>(status, "Label9", u"Abbrechen"_s);
    c.Label9->setText(u"X"_s);
    c.Label9->setToolTip(u"Abbrechen"_s);
    c.Label9->setAlignment(Qt::AlignCenter);
    c.Label9->setFixedSize(34, 26);
    c.Label9->setStyleSheet(u"background: #c00000; color: white; font-weight: bold; border-radius: 4px"_s);
    c.Label9->hide();
    auto *statusLine = lineOf({c.FillProgress, c.Label9});
    statusLine->setStretch(0, 1);
    statusLine->setContentsMargins(6, 0, 6, 6);
    status->setLayout(statusLine);

    auto *column = new QVBoxLayout(group);
    column->setContentsMargins(8, 4, 8, 6);
    column->setSpacing(gap);
    column->addLayout(lineOf({c.Command10, c.Picture2, c.OptManualHighlight, c.OptAutoHighlight, c.Check7,
                              nullptr, c.cmdSmaller, c.cmdLarger, c.Command6}));
    auto *sheet = new QGridLayout; // the progress lies over the text, which therefore never jumps
    sheet->addWidget(c.RTF, 0, 0);
    sheet->addWidget(status, 0, 0, Qt::AlignBottom);
    column->addLayout(sheet, 1);
    column->addLayout(lineOf({c.Command8, c.Command4, nullptr, c.cmdUnHighlight, c.cmdResetColors}));
    return group;
}

struct ResultColumn
{
    QLabel *&count;
    const char *countName;
    const char16_t *caption;
    StoreList *&list;
    const char *listName;
    QCheckBox *&shows;
    const char *showsName;
    PressButton *clear;
};

QLayout *makeResultColumn(QWidget *group, const ResultColumn &row)
{
    const QString caption = QString::fromUtf16(row.caption);
    row.count = makeLabel(group, row.countName, u"0"_s);
    row.list = make<StoreList>(group, row.listName, caption);
    row.list->setMinimumSize(60, 36);
    row.shows = make<QCheckBox>(group, row.showsName, caption + u": Liste anzeigen"_s, u"Liste anzeigen"_s);
    auto *column = new QVBoxLayout;
    column->setSpacing(2);
    column->addLayout(lineOf({new QLabel(caption, group), row.count, nullptr}));
    column->addWidget(row.list, 1);
    column->addStretch(0);
    column->addWidget(row.shows);
    column->addWidget(row.clear);
    return column;
}

QLayout *makeStemColumn(C &c, QWidget *group)
{
    c.Text1 = make<QLineEdit>(group, "Text1", u"Wortstamm"_s);
    c.Text1->setReadOnly(true);
    c.Text1->setFocusPolicy(Qt::NoFocus);
    c.Text1->setMinimumWidth(70);
    c.Image1 = make<QLabel>(group, "Image1", u"Richtig"_s);
    c.Image1->setPixmap(QIcon(u":/icons/smiley.svg"_s).pixmap(signSize));
    QSizePolicy keepsRoom = c.Image1->sizePolicy();
    keepsRoom.setRetainSizeWhenHidden(true);
    c.Image1->setSizePolicy(keepsRoom);
    c.Image1->hide();
    c.Label13 = makeLabel(group, "Label13", u"Punkte:"_s);
    c.Label8 = makeLabel(group, "Label8", u"0"_s);
    speakAs(*c.Label8, u"Punkte: %1"_s);
    c.Label13->hide();
    c.Label8->hide();
    auto *column = new QVBoxLayout;
    column->setSpacing(2);
    column->addWidget(makeLabel(group, "Label5", u"Wortstamm"_s));
    column->addLayout(lineOf({c.Text1, c.Image1}));
    column->addLayout(lineOf({c.Label13, c.Label8, nullptr}));
    column->addStretch(1);
    c.Check5 = make<QCheckBox>(group, "Check5", u"Anzeige"_s, u"Anzeige"_s);
    c.Check5->setChecked(true);
    column->addWidget(c.Check5);
    return column;
}

QWidget *makeResultGroup(C &c, QWidget *parent)
{
    QGroupBox *group = makeGroup(parent, "FrameResult", u"Ergebnis"_s);
    auto *columns = new QHBoxLayout(group);
    columns->setContentsMargins(8, 2, 8, 6);
    columns->setSpacing(2 * gap);
    columns->addLayout(makeStemColumn(c, group), 2);

    c.rtfResponse = make<QTextEdit>(group, "rtfResponse", u"Antwort"_s);
    c.rtfResponse->setTextInteractionFlags(Qt::NoTextInteraction);
    c.rtfResponse->setFocusPolicy(Qt::NoFocus);
    c.rtfResponse->setAcceptDrops(false);
    c.rtfResponse->setMinimumSize(120, 70);
    QSizePolicy keepsPlace = c.rtfResponse->sizePolicy();
    keepsPlace.setRetainSizeWhenHidden(true);
    c.rtfResponse->setSizePolicy(keepsPlace);
    columns->addWidget(c.rtfResponse, 5);

    columns->addLayout(makeResultColumn(group, {c.Label3, "Label3", u"Richtig ", c.UserFoundWortelList,
                                                "UserFoundWortelList", c.Check3, "Check3", c.Command1}),
                       2);
    columns->addLayout(makeResultColumn(group, {c.Label14, "Label14", u"Falsch", c.UserFalseWortelList,
                                                "UserFalseWortelList", c.Check4, "Check4", c.Command2}),
                       2);
    return group;
}

QWidget *makeStemPanel(C &c, QWidget *parent)
{
    c.stemPanel = new GradientPanel(parent);
    c.Label16 = makeLabel(c.stemPanel, "Label16", QString());
    c.Label17 = makeLabel(c.stemPanel, "Label17", QString());
    for (QLabel *label : {c.Label16, c.Label17}) {
        label->setWordWrap(true);
        label->setMinimumWidth(1);
    }
    c.wortellist = make<StoreList>(c.stemPanel, "wortellist", u"Wortstamm-Liste"_s);
    c.wortellist->setSelectionMode(QAbstractItemView::ExtendedSelection);
    auto *column = new QVBoxLayout(c.stemPanel);
    column->setContentsMargins(gap, gap, gap, gap);
    column->addWidget(c.Label16);
    column->addWidget(c.Label17);
    column->addWidget(c.wortellist, 1);
    return c.stemPanel;
}

} // namespace

KernlingControls makeKernlingControls(QWidget *form)
{
    C c;
    c.form = form;
    makeButtons(c);

    auto *left = new GradientPanel(form);
    c.sidePanel = left;
    auto *leftColumn = new QVBoxLayout(left);
    leftColumn->setContentsMargins(gap, gap, gap, gap);
    leftColumn->addWidget(makeWordGroup(c, left));

    auto *middle = new GradientPanel(form);
    auto *halves = new QSplitter(Qt::Vertical, middle);
    halves->setChildrenCollapsible(false);
    auto *upper = new QWidget(halves);
    auto *upperColumn = new QVBoxLayout(upper);
    upperColumn->setContentsMargins(0, 0, 0, 0);
    upperColumn->setSpacing(gap);
    upperColumn->addWidget(makeFileGroup(c, upper));
    upperColumn->addWidget(makeTextGroup(c, upper), 1);
    halves->addWidget(upper);
    halves->addWidget(makeResultGroup(c, halves));
    halves->setStretchFactor(0, 3);
    halves->setStretchFactor(1, 1);
    halves->setSizes({310, 125});
    c.Check1->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    c.Check1->setCheckable(true);
    auto *middleLine = new QHBoxLayout(middle);
    middleLine->setContentsMargins(0, gap, 0, gap);
    middleLine->setSpacing(gap);
    middleLine->addWidget(halves, 1);
    middleLine->addWidget(c.Check1);

    c.panels = new QSplitter(Qt::Horizontal, form);
    c.panels->setObjectName(u"cSplitter"_s);
    c.panels->addWidget(left);
    c.panels->addWidget(middle);
    c.panels->addWidget(makeStemPanel(c, c.panels));
    c.panels->setChildrenCollapsible(false);
    c.panels->setStretchFactor(1, 1);
    c.stemPanel->hide();
    auto *whole = new QHBoxLayout(form);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(c.panels);
    orderForKeys(whole);
    return c;
}

void scaleKernlingControls(const C &c, const QSize &window)
{
    const double factor = std::min(static_cast<double>(window.width()) / designSize.width(),
                                   static_cast<double>(window.height()) / designSize.height());
    const int letters = std::clamp(static_cast<int>(smallLetters * factor), smallLetters, largeLetters);
    if (c.Check1->font().pixelSize() == letters)
        return;
    const auto pixels = [letters](double sizes) { return static_cast<int>(sizes * letters); };
    QFont font = c.form->font();
    font.setPixelSize(letters);
    // One by one: a frame with a style of its own hands no letters down.
    for (QWidget *control : c.panels->findChildren<QWidget *>())
        if (control != c.RTF && !c.RTF->isAncestorOf(control))
            control->setFont(font);
    for (QGroupBox *group : c.panels->findChildren<QGroupBox *>())
        group->setStyleSheet(groupStyle.arg(pixels(titleShare)));
    for (PressButton *button : c.panels->findChildren<PressButton *>()) {
        button->setMinimumHeight(pixels(buttonHeight));
        button->setIconSize(QSize(pixels(textSize), pixels(textSize)));
    }
    c.RTF->setLetterSize(pixels(textSize));
    font.setPixelSize(pixels(answerSize));
    c.rtfResponse->setFont(font);
    font.setBold(true);
    for (QWidget *shown : std::initializer_list<QWidget *>{c.Text1, c.Label8, c.Label3, c.Label14})
        shown->setFont(font);
    c.sidePanel->setMinimumWidth(pixels(sideWidth));
    c.stemPanel->setMinimumWidth(pixels(stemWidth));
    for (QWidget *number : {c.Text3, c.Text4})
        number->setMaximumWidth(pixels(numberWidth));
    c.cboWordLen->setMaximumWidth(pixels(lengthWidth));
    c.Check1->setFixedWidth(pixels(stripWidth));
}
