// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/tonarin/frm_play_vokal.h"

#include "games/tonarin/vowel_stems.h"
#include "platform/boxes.h"
#include "platform/ground.h"
#include "platform/product.h"
#include "platform/sound.h"
#include "widgets/gradient.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

struct VowelRow
{
    const char16_t *vowel; ///< as it is shown
    const char16_t *file;
    const char16_t *wordFile; ///< k or l, and the example word
    bool isLong;
};

// clang-format off
constexpr VowelRow vowels[] = {
    {u"a", u"ka", u"klassen", false},   {u"e", u"ke", u"kkennen", false},
    {u"i", u"ki", u"kbitten", false},   {u"o", u"ko", u"kkommen", false},
    {u"u", u"ku", u"kzucken", false},   {u"ä", u"kä", u"kschätzen", false},
    {u"ö", u"kö", u"kkönnen", false},   {u"ü", u"kü", u"krücken", false},
    {u"a", u"la", u"lfahren", true},    {u"e", u"le", u"lgehen", true},
    {u"i", u"li", u"lspielen", true},   {u"o", u"lo", u"lholen", true},
    {u"u", u"lu", u"lrufen", true},     {u"ä", u"lä", u"lzählen", true},
    {u"ö", u"lö", u"lhören", true},     {u"ü", u"lü", u"lführen", true},
    {u"au", u"lau", u"llaufen", true},  {u"ei", u"lei", u"lzeigen", true},
    {u"eu", u"leu", u"lheulen", true},
};
// clang-format on

constexpr int cellHeight = 46; ///< pixels, for a finger
constexpr int cellWidth = 66;
constexpr int vowelSize = 24; ///< pixels, the letters
constexpr int wordSize = 13;

const QString cellStyle =
    u"QPushButton { background: white; color: #10285f; border: 2px solid #6f8fc0; border-radius: 6px; }"
    "QPushButton:hover { background: #eaf2ff; }"
    "QPushButton:focus { border-color: #10285f; }"
    "QPushButton:checked { background: #ffdc73; border-color: #c08000; }"_s;

} // namespace

FrmPlayVokal::FrmPlayVokal(const Ground &ground, QWidget *owner)
    : QDialog(owner)
    , ground_(ground)
{
    setObjectName(u"FrmPlayVokal"_s);
    setWindowTitle(u"Vokale anhören"_s);
    setModal(true);
    auto *panel = new GradientPanel(this);
    auto *column = new QVBoxLayout(panel);
    for (const bool longOnes : {false, true})
        column->addWidget(makeGroup(longOnes ? u"Lange Vokale"_s : u"Kurze Vokale"_s, longOnes));
    auto *arrows = new QButtonGroup(this); // the arrow keys walk through it
    arrows->setExclusive(false);
    for (QPushButton *label : findChildren<QPushButton *>())
        arrows->addButton(label);
    auto *close = new QPushButton(u"Abbrechen"_s, panel);
    close->setObjectName(u"Command1"_s);
    close->setMinimumSize(120, 34);
    close->setAutoDefault(false);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    column->addWidget(close, 0, Qt::AlignHCenter);
    auto *whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(panel);
    whole->setSizeConstraint(QLayout::SetFixedSize);
}

QWidget *FrmPlayVokal::makeGroup(const QString &title, bool longOnes)
{
    auto *group = new QGroupBox(title);
    auto *grid = new QGridLayout(group);
    grid->setSpacing(5);
    int column = 0;
    for (const VowelRow &row : vowels) {
        if (row.isLong != longOnes)
            continue;
        const QString word = QString::fromUtf16(row.wordFile).mid(1);
        grid->addWidget(makeLabel(row.file, QString::fromUtf16(row.vowel), false), 0, column);
        grid->addWidget(makeLabel(row.wordFile, word, true), 1, column);
        ++column;
    }
    return group;
}

QPushButton *FrmPlayVokal::makeLabel(const char16_t *file, const QString &caption, bool isWord)
{
    auto *label = new QPushButton(caption);
    label->setObjectName(u"LblPlaySound(%1)"_s.arg(count_++));
    label->setStyleSheet(cellStyle);
    label->setMinimumSize(cellWidth, cellHeight);
    label->setCheckable(true);
    label->setAutoDefault(false);
    QFont letters = label->font();
    letters.setPixelSize(isWord ? wordSize : vowelSize);
    letters.setBold(!isWord);
    label->setFont(letters);
    const QString name = QString::fromUtf16(file);
    const QString length = name.startsWith(u'k') ? u"kurz"_s : u"lang"_s;
    label->setAccessibleName(isWord ? caption : caption + u' ' + length);
    connect(label, &QPushButton::clicked, this, [this, label, name] { LblPlaySound_Click(label, name); });
    return label;
}

void FrmPlayVokal::LblPlaySound_Click(QPushButton *label, const QString &file)
{
    const bool plays = ground_.sound.playFile(vowel_stems::soundFile(ground_.AppFolder, file));
    for (QPushButton *other : findChildren<QPushButton *>())
        other->setChecked(other == label && plays);
    if (!plays)
        ground_.boxes.plainBox(Boxes::Icon::Warning, product::faultTitle,
                               u"Can not play the sound for this vokal"_s);
}
