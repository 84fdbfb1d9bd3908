// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/web/web_view.h"

#include "persistence/settings/option_fields.h"
#include "platform/text_masks.h"
#include "widgets/window_style.h"

#include <QFile>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

QHBoxLayout *lineOf(std::initializer_list<QWidget *> widgets)
{
    auto *line = new QHBoxLayout;
    for (QWidget *widget : widgets)
        line->addWidget(widget);
    return line;
}

QString scriptText()
{
    QFile script(u":/web/drag.js"_s);
    return script.open(QIODevice::ReadOnly) ? QString::fromLatin1(script.readAll()) : QString();
}

} // namespace

WebView::WebView(QWidget *parent)
    : QWidget(parent)
    , TxtMainJava(new QPlainTextEdit(scriptText(), this))
{
    TxtMainJava->setObjectName(u"TxtMainJava"_s);
    TxtMainJava->hide();

    auto *left = new QVBoxLayout;
    auto *right = new QVBoxLayout;
    auto *whole = new QVBoxLayout(this);
    whole->setContentsMargins(12, 8, 12, 8);
    whole->addWidget(makeFiles());
    left->addWidget(makeTitle());
    left->addWidget(makePicture());
    left->addStretch(1);
    right->addWidget(makeTiles());
    right->addWidget(makeLetters());
    right->addWidget(makeColours());
    right->addStretch(1);
    auto *columns = new QHBoxLayout;
    columns->addLayout(left, 1);
    columns->addLayout(right, 1);
    whole->addLayout(columns, 1);

    QHBoxLayout *foot = window_style::addFoot(*whole);
    cmdMakeWebPage = window_style::addButton(*foot, u"Webseite erstellen"_s, "cmdMakeWebPage");
    cmdMakeWebPage->setDefault(true);
    cmdViewWebpage = window_style::addButton(*foot, u"Webseite ansehen"_s, "cmdViewWebpage");
    cmdClose = window_style::addButton(*foot, u"Schließen"_s, "cmdClose");
}

QWidget *WebView::makeFiles()
{
    auto *box = new QGroupBox(u"Dateien"_s, this);
    auto *form = new QFormLayout(box);
    TxtInfile = new QLineEdit(box);
    window_style::addRow(*form, u"Wortel &Sitzung (.WLX)"_s, TxtInfile, "TxtInfile");
    txtoutfile = new QLineEdit(box);
    Command1 = makeDots("Command1", u"Webseite wählen"_s);
    window_style::name(*txtoutfile, "txtoutfile", u"Webseite (.HTM/.HTML)"_s);
    auto *caption = new QLabel(u"&Webseite (.HTM/.HTML)"_s, box);
    caption->setBuddy(txtoutfile);
    form->addRow(caption, lineOf({txtoutfile, Command1}));
    return box;
}

QWidget *WebView::makeTitle()
{
    auto *box = new QGroupBox(u"Titel"_s, this);
    auto *form = new QFormLayout(box);
    TextWebTitle = new QLineEdit(box);
    window_style::addRow(*form, u"&Titel"_s, TextWebTitle, "TextWebTitle");
    const QString kept = u"Wird gemerkt, ändert die Webseite aber nicht"_s;
    ChkAddDate = makeCheck("ChkAddDate", u"&Datum hinzufügen"_s, u"Datum hinzufügen"_s);
    ChkMoveTitle = makeCheck("ChkMoveTitle", u"Mobil"_s, u"Titel mobil"_s, kept);
    ChkKeepTitle = makeCheck("ChkKeepTitle", u"Behalten"_s, u"Titel behalten"_s, kept);
    form->addRow(lineOf({ChkAddDate, ChkMoveTitle, ChkKeepTitle}));
    TxtAuthor = new QLineEdit(box);
    window_style::addRow(*form, u"&Author"_s, TxtAuthor, "TxtAuthor");
    TxtEmail = new QLineEdit(box);
    window_style::addRow(*form, u"&Email"_s, TxtEmail, "TxtEmail");
    for (QLineEdit *field : {TxtAuthor, TxtEmail})
        field->setToolTip(u"Kommt nicht auf die Webseite"_s);
    return box;
}

QWidget *WebView::makePicture()
{
    auto *box = new QGroupBox(u"Hintergrund"_s, this);
    auto *form = new QFormLayout(box);
    chkAddBGPic = makeCheck("chkAddBGPic", u"&Bild"_s, u"Bild"_s);
    txtbgpic = new QLineEdit(box);
    window_style::name(*txtbgpic, "txtbgpic", u"Datei des Bildes (Gif, JPG oder BMP)"_s);
    Command5 = makeDots("Command5", u"Bild wählen"_s);
    form->addRow(chkAddBGPic, lineOf({txtbgpic, Command5}));
    ChkStripExt =
        makeCheck("ChkStripExt", u"St&utzen"_s, u"Stutzen"_s,
                  u"Nur den Namen des Bildes schreiben: Bild und Webseite liegen in einem Ordner"_s);
    ChkMovePic = makeCheck("ChkMovePic", u"Mobil"_s, u"Bild mobil"_s);
    auto *place = lineOf({ChkStripExt, ChkMovePic});
    LimitedPosX = makePlace("LimitedPosX", u"Platz des Bildes von links"_s);
    LimitedPosY = makePlace("LimitedPosY", u"Platz des Bildes von oben"_s);
    place->addStretch(1);
    place->addWidget(new QLabel(u"X"_s, box));
    place->addWidget(LimitedPosX);
    place->addWidget(new QLabel(u"Y"_s, box));
    place->addWidget(LimitedPosY);
    form->addRow(place);
    return box;
}

QWidget *WebView::makeTiles()
{
    auto *box = new QGroupBox(u"Morpheme"_s, this);
    auto *line = new QHBoxLayout(box);
    ChkMoveable = makeCheck("ChkMoveable", u"&Mobil"_s, u"Morpheme mobil"_s);
    ChkUseBorder = makeCheck("ChkUseBorder", u"&Gerahmt"_s, u"Morpheme gerahmt"_s);
    line->addWidget(ChkMoveable);
    line->addWidget(ChkUseBorder);
    line->addStretch(1);
    return box;
}

QWidget *WebView::makeLetters()
{
    auto *box = new QGroupBox(u"Schriftgröße"_s, this);
    auto *line = new QHBoxLayout(box);
    for (std::size_t step = 0; step < OptFontSize.size(); ++step) {
        const QString caption = step == 0 ? u"Normal"_s : u"+%1"_s.arg(step);
        OptFontSize[step] = makeOption(u"OptFontSize(%1)"_s.arg(step), caption, u"Schriftgröße "_s + caption);
        line->addWidget(OptFontSize[step]);
    }
    line->addStretch(1);
    return box;
}

QWidget *WebView::makeColours()
{
    auto *box = new QGroupBox(u"Farben"_s, this);
    auto *lines = new QVBoxLayout(box);
    Option2[0] = makeOption(u"Option2(0)"_s, u"Farben des &Programms"_s, u"Farben des Programms"_s);
    Option2[1] = makeOption(u"Option2(1)"_s, u"Eige&ne Farben"_s, u"Eigene Farben"_s);
    lines->addLayout(lineOf({Option2[0], Option2[1]}));
    auto *swatches = new QHBoxLayout;
    addSwatch(*swatches, Picture1, "Picture1", u"Webseite"_s);
    addSwatch(*swatches, Picture2, "Picture2", u"Morphem"_s);
    addSwatch(*swatches, Picture3, "Picture3", u"Schrift"_s);
    swatches->addStretch(1);
    lines->addLayout(swatches);
    return box;
}

QCheckBox *WebView::makeCheck(const char *name, const QString &caption, const QString &spoken,
                              const QString &tip)
{
    auto *check = new QCheckBox(caption, this);
    window_style::name(*check, name, spoken);
    check->setToolTip(tip);
    return check;
}

QRadioButton *WebView::makeOption(const QString &name, const QString &caption, const QString &spoken)
{
    auto *option = new QRadioButton(caption, this);
    option->setObjectName(name);
    option->setAccessibleName(spoken);
    return option;
}

QPushButton *WebView::makeDots(const char *name, const QString &tip)
{
    auto *button = new QPushButton(u"…"_s, this);
    window_style::name(*button, name, tip);
    button->setToolTip(tip);
    button->setAutoDefault(false);
    button->setFixedWidth(32);
    return button;
}

QLineEdit *WebView::makePlace(const char *name, const QString &caption)
{
    auto *field = new QLineEdit(this);
    window_style::name(*field, name, caption);
    field->setToolTip(caption + u" (Bildpunkte)"_s);
    field->setFixedWidth(56);
    field->setMaxLength(5);
    field->setAlignment(Qt::AlignRight);
    (new clsTextBox(field, Integer_Pos))->pAllowColorChange = false;
    field->setPalette({});
    return field;
}

void WebView::addSwatch(QBoxLayout &line, ColourSwatch *&swatch, const char *name, const QString &caption)
{
    swatch = new ColourSwatch(this);
    window_style::name(*swatch, name, u"Farbe: "_s + caption);
    swatch->setToolTip(u"Farbe wählen: "_s + caption);
    line.addWidget(swatch);
    line.addWidget(new QLabel(caption, this));
}
