// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/tips.h"

#include "board/hand/command_router.h"
#include "platform/boxes.h"
#include "platform/files.h"
#include "platform/gate.h"
#include "platform/ground.h"
#include "platform/ini_file.h"
#include "platform/minute_timer.h"
#include "platform/note_texts.h"
#include "platform/notes.h"
#include "platform/options.h"
#include "platform/play_state.h"
#include "platform/procedure.h"
#include "platform/product.h"
#include "platform/sounds.h"
#include "platform/word_lists.h"
#include "widgets/alpha_panel.h"
#include "widgets/click_label.h"
#include "widgets/dropper.h"
#include "widgets/floating_tile.h"
#include "widgets/gradient.h"
#include "widgets/main_controls.h"
#include "widgets/msg_scroller.h"
#include "widgets/picture_box.h"

#include <QApplication>
#include <QTimer>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int valueLimit = 750;    ///< characters of a tip
constexpr int largestLetters = 26; ///< pixels
constexpr int smallestLetters = 12;
constexpr int closeLetters = 16;
constexpr int handsFreeLater = 2000; ///< milliseconds

const QString section = u"Tipp"_s;

QString lexiconKey(const QString &lexiconPath)
{
    QString name = GetOnlyFileName(lexiconPath);
    if (name.endsWith(u".lex"_s, Qt::CaseInsensitive))
        name.chop(4);
    return name;
}

} // namespace

Tips::Tips(Ground &ground, MainControls &controls, WordLists &lists, const PlayState &play)
    : QObject(controls.form)
    , ground_(ground)
    , controls_(controls)
    , lists_(lists)
    , play_(play)
    , TipTimer_(new QTimer(this))
    , GameTipTimer_(new QTimer(this))
    , VokalTipTimer_(new QTimer(this))
{
    TipTimer_->setObjectName(u"TipTimer"_s);
    GameTipTimer_->setObjectName(u"GameTipTimer"_s);
    VokalTipTimer_->setObjectName(u"VokalTipTimer"_s);
    connect(TipTimer_, &QTimer::timeout, this, &Tips::TipTimer_Tick);
    connect(GameTipTimer_, &QTimer::timeout, this, &Tips::GameTipTimer_Tick);
    connect(VokalTipTimer_, &QTimer::timeout, this, &Tips::VokalTipTimer_Tick);
    connect(controls_.PicAlpha, &AlphaPanel::clicked, this, &Tips::hideTip);
    connect(controls_.Label5, &ClickLabel::clicked, this, &Tips::hideTip);
    connect(controls_.Image1, &ClickLabel::clicked, this,
            throughGate(ground_.gate, Gate::Way::Look, [this] { Image1_Click(); }));
    controls_.AlphaText->setTextFormat(Qt::PlainText);
    controls_.AlphaText->setWordWrap(true);
    controls_.AlphaText->setAttribute(Qt::WA_TransparentForMouseEvents);
}

bool Tips::isShown() const { return !controls_.PicAlpha->isHidden(); }

void Tips::hideTip() { controls_.PicAlpha->hide(); }

QString Tips::readTip(const QString &file, const QString &key)
{
    Procedure step{ground_.log, "readTip", "frmMain", Procedure::Silent};
    QString text;
    step([&] { text = IniFile(file).read(section, key, {}, valueLimit); });
    return text;
}

void Tips::complain(const QString &text)
{
    ground_.boxes.plainBox(Boxes::Icon::Warning, product::name, text);
}

void Tips::ShowLexiconTip2(const QString &lexiconPath)
{
    Procedure step{ground_.log, "ShowLexiconTip2", "frmMain"};
    const QString file = ground_.AppFolder + u"lextip.ini"_s;
    if (!IsTextFile(file)) {
        complain(u"Die Tipp-Datei (Lextip.ini) fehlt"_s);
        return;
    }
    // The tip of the main list stands in every whole file; its absence tells that the file is not whole.
    QString text = readTip(file, u"hauptbausteine"_s);
    if (!text.isEmpty())
        text = readTip(file, lexiconKey(lexiconPath));
    if (text.isEmpty()) {
        complain(u"Die Tipp-Datei (Lextip.ini) ist beschädigt oder unvollständig"_s);
        return;
    }
    step([&] { showTip(text); });
}

void Tips::ShowVokalTip(Vowels group)
{
    Procedure step{ground_.log, "ShowVokalTip", "frmMain"};
    const QString file = ground_.AppFolder + u"vokaltip.ini"_s;
    if (!IsTextFile(file)) {
        complain(u"Die Tipp-Datei (vokaltip.ini) fehlt"_s);
        return;
    }
    const QString text = readTip(file, group == Vowels::Short ? u"Kurzvokal"_s : u"Langvokal"_s);
    if (text.isEmpty()) {
        complain(u"Die Tipp-Datei (vokaltip.ini) ist beschädigt oder unvollständig"_s);
        return;
    }
    step([&] { showTip(text); });
}

void Tips::showTip(const QString &text)
{
    controls_.AlphaText->setText(QString(text).replace(u"<BR>"_s, u"\n"_s));
    layOutPanel();
    controls_.PicAlpha->show();
    controls_.PicAlpha->raise();
    controls_.Scroller->raise(); // the words to copy stay in sight
    playSound(ground_, SoundId::TipShown);
}

void Tips::recompose()
{
    if (isShown())
        layOutPanel();
}

void Tips::layOutPanel()
{
    AlphaPanel *panel = controls_.PicAlpha;
    // The lower band lies over the board's foot and stays free.
    const QPoint corner = controls_.picCanvas->mapTo(controls_.form, QPoint(0, 0));
    const int bandTop = controls_.Picture1->mapTo(controls_.form, QPoint(0, 0)).y();
    const int height = std::min(controls_.picCanvas->height(), std::max(1, bandTop - corner.y()));
    panel->setGeometry(QRect(corner, QSize(controls_.picCanvas->width(), height)));
    panel->blend(controls_.picCanvas->image());

    QFont letters = controls_.Label5->font();
    letters.setPixelSize(closeLetters);
    letters.setBold(true);
    letters.setUnderline(true);
    controls_.Label5->setFont(letters);
    controls_.Label5->adjustSize();
    const int margin = std::clamp(panel->width() / 12, 8, 120);
    const int closeTop = panel->height() - controls_.Label5->height() - 14;
    controls_.Label5->move(panel->width() - controls_.Label5->width() - margin, closeTop);

    // As large as the board lets it be: a class reads it from the back row.
    QLabel *words = controls_.AlphaText;
    words->setGeometry(margin, 10, panel->width() - 2 * margin, std::max(1, closeTop - 20));
    words->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    QFont font = words->font();
    for (int size = largestLetters; size >= smallestLetters; --size) {
        font.setPixelSize(size);
        const QRect needed = QFontMetrics(font).boundingRect(words->rect(), Qt::TextWordWrap, words->text());
        if (needed.height() <= words->height())
            break;
    }
    words->setFont(font);
}

bool Tips::IsSideWindowOpen()
{
    static const std::array names{u"frmMemory"_s, u"FrmKernling"_s, u"frmChooseWortel"_s};
    const QWidgetList windows = QApplication::topLevelWidgets();
    return std::any_of(windows.begin(), windows.end(), [](const QWidget *window) {
        return window->isVisible() &&
               std::find(names.begin(), names.end(), window->objectName()) != names.end();
    });
}

bool Tips::isTipDue() const { return TipTimer_->isActive(); }

void Tips::startTipTimer()
{
    if (ground_.options.isOn(Setting::UseLexTip))
        startForSeconds(*TipTimer_, ground_.options.number(Setting::TipTime));
}

void Tips::startGameTipTimer()
{
    if (ground_.options.isOn(Setting::UseGameLexTip))
        startForSeconds(*GameTipTimer_, ground_.options.number(Setting::GameTipTime));
}

void Tips::startVokalTipTimer()
{
    if (ground_.options.isOn(Setting::VokalTipEnabled))
        startForSeconds(*VokalTipTimer_, ground_.options.number(Setting::VokalTipTime));
}

void Tips::stopTimers()
{
    TipTimer_->stop();
    stopGameTimers();
}

void Tips::stopGameTimers()
{
    GameTipTimer_->stop();
    VokalTipTimer_->stop();
}

void Tips::TipTimer_Tick()
{
    TipTimer_->stop();
    showWhenFree([this] { ShowLexiconTip2(lists_.CurrentLexiconFile); });
}

void Tips::GameTipTimer_Tick()
{
    GameTipTimer_->stop();
    showWhenFree([this] { ShowLexiconTip2(lists_.CurrentLexiconFile); });
}

void Tips::VokalTipTimer_Tick()
{
    VokalTipTimer_->stop();
    showWhenFree([this] { ShowVokalTip(play_.checkedVowels()); });
}

/// Never over the running strip, nor while a tile is in the hand.
void Tips::showWhenFree(const std::function<void()> &show)
{
    ground_.gate.whenFree([this, show] {
        if (IsSideWindowOpen() || isShown() || play_.RetypeActive())
            return;
        if (!controls_.BtnMove1->isHidden())
            QTimer::singleShot(handsFreeLater, this, [this, show] { showWhenFree(show); });
        else
            show();
    });
}

void Tips::Image1_Click()
{
    if (isShown()) {
        ground_.notes.tell(note::tipIsOpen);
        return;
    }
    if (play_.checkedVowels() != Vowels::None)
        ShowVokalTip(play_.checkedVowels());
    else
        ShowLexiconTip2(lists_.CurrentLexiconFile);
}

void Tips::mnuShowTip_Click()
{
    if (isShown())
        ground_.notes.tell(note::tipIsOpen);
    else
        ShowLexiconTip2(lists_.CurrentLexiconFile);
}

void Tips::registerCommands(CommandRouter &router)
{
    router.onMenu(275, [this] { mnuShowTip_Click(); });
    router.on(command::From::Key, {8}, [this](const command::Command &, const Press &) {
        mnuShowTip_Click();
        return Ending::Whole;
    });
}
