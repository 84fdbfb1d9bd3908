// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frm_main.h"

#include "platform/boxes.h"
#include "platform/clock.h"
#include "platform/desktop.h"
#include "platform/files.h"
#include "platform/gate.h"
#include "platform/ground.h"
#include "platform/log.h"
#include "platform/options.h"
#include "platform/procedure.h"
#include "platform/product.h"
#include "platform/sounds.h"
#include "platform/system_info.h"
#include "platform/text.h"
#include "shell/command_line.h"
#include "shell/continuation.h"
#include "shell/crash_filter.h"
#include "shell/rooms.h"
#include "widgets/click_label.h"
#include "widgets/colour.h"
#include "widgets/gradient.h"
#include "widgets/main_controls.h"
#include "widgets/picture_box.h"
#include "widgets/press_button.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int usualCount = 20;
constexpr int titleBarHeight = 30; ///< pixels, about what window managers take

constexpr char16_t welcomeText[] = u"Hallo !\n\n"
                                   u"Mit einem Rechtsklick auf die\n"
                                   u"Wortel-Taste kannst du eine\n"
                                   u"Wortel-Liste mit einem anderen\n"
                                   u"Rechtschreibmuster auswählen.\n\n"
                                   u"Viel Spaß !";

} // namespace

frmMain::frmMain(Ground &ground, const StartFacts &facts)
    : ground_(ground)
    , facts_(facts)
    , controls_(makeMainControls(this))
    , status_(controls_.GameProgress)
    , note_(new ShortNote(*controls_.picCanvas, *controls_.Picture1))
    , help_(ground.AppFolder, ground.gate, this)
    , size_(ground, play_, facts.SizePercent, facts.Screen)
    , longPress_(ground)
{
    setObjectName(u"frmMain"_s);
    setWindowTitle(product::name);
    setAcceptDrops(true);
    QSize size = designSize;
    // On a screen that is too small the suffix row would lie under the band, so the title bar is left out as
    // well.
    if (const QScreen *screen = QGuiApplication::primaryScreen())
        size = size.boundedTo(screen->availableSize() - QSize(0, titleBarHeight));
    resize(size);
    layOutMainControls(controls_, width(), height());
    rooms_ = std::make_unique<Rooms>(ground_, Rooms::Hall{controls_, sheet_, status_, lists_, play_});
    ground_.gate.setView(&workView_);
}

frmMain::~frmMain() { ground_.gate.setView(nullptr); }

void frmMain::loadForm()
{
    Procedure step{ground_.log, "Form_Load", "frmMain"};
    cmdLineReady_ = false;
    hiddenText_ = facts_.CommandLine;

    step([&] { crash_filter::install(ground_.log.enabled() ? nativePath(ground_.log.file()) : QString()); });
    step([&] { makeReady(); });
    step([&] { wire(); });
    step([&] { ground_.options.GetSettings(); });
    step([&] { rooms_->placement.takeTryLimit(); });
    step([&] { controls_.Text1->setText(ground_.options.text(Setting::NumWortel)); });
    step([&] { rooms_->game.takeLevel(); });
    step([&] { rooms_->optTypes.select(TileFilter::all); });
    QString trouble;
    step([&] { trouble = rooms_->background.loadFromSetting(); });
    if (!trouble.isEmpty())
        onceActivated_.push_back([this, trouble] { rooms_->background.tell(trouble); });

    step([&] { rooms_->strip.SetUpMsgScroller(); });
}

bool frmMain::Form_Load()
{
    loadForm();
    Procedure step{ground_.log, "Form_Load", "frmMain", Procedure::Silent};
    // A number past 16 bits leaves the usual count, so that there is a board in any case.
    Int16 count = usualCount;
    step([&] { count = CLng(std::abs(Val(controls_.Text1->text()))); });
    bool filled = true;
    step([&] { filled = rooms_->progInit.run(count, facts_.ScreenResolutionCode); });
    if (!filled)
        return false;
    step([&] { loadKept(); });
    cmdLineReady_ = true;
    if (!facts_.Complaint.isEmpty())
        tellLater(facts_.Complaint);
    return true;
}

void frmMain::goOn(const Continuation &kept)
{
    loadForm();
    Procedure step{ground_.log, "Form_Load", "frmMain", Procedure::Silent};
    step([&] { goOnWith(kept, *this); });
    step([&] { emit menusStale(); });
    cmdLineReady_ = true;
    activated_ = true;
    opensAgain_ = std::make_unique<Continuation>(kept);
}

void frmMain::leave()
{
    Procedure step{ground_.log, "leave", "frmMain"};
    ended_ = true;
    left_.emplace(ground_.gate.stay());
    step([&] { rooms_->tips.stopTimers(); });
    step([&] { rooms_->game.stopTimers(); });
    step([&] { crash_filter::remove(); });
}

/// Colours, focus and accessible names that hold for the whole run.
void frmMain::makeReady()
{
    const QColor board = toQColor(colours::board);
    QPalette palette = this->palette();
    palette.setColor(QPalette::Window, board);
    setPalette(palette);
    controls_.picCanvas->setBackColour(board);
    controls_.picCanvas->cls();
    qApp->installEventFilter(this);
    controls_.picCanvas->setFocusPolicy(Qt::StrongFocus);
    controls_.picCanvas->setFocus();
}

void frmMain::resizeEvent(QResizeEvent *)
{
    layOutMainControls(controls_, width(), height());
    rooms_->fit.resized();
    rooms_->canvas.repaint();
    rooms_->morphemeLists.placeOpen();
    rooms_->wordList.placeOpen();
    rooms_->dictionary.placeOpen();
    rooms_->tips.recompose();
    rooms_->strip.boardResized();
}

void frmMain::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::ActivationChange || ended_)
        return;
    if (!isActiveWindow())
        ground_.gate.whenFree([this] { rooms_->pointer.letGo(); });
    else if (!std::exchange(activationWaits_, true))
        ground_.gate.whenFree([this] { Form_Activate(); });
}

void frmMain::Form_Activate()
{
    activationWaits_ = false;
    Procedure step{ground_.log, "Form_Activate", "frmMain"};
    step([&] { rooms_->canvas.repaint(); });
    step([&] { ground_.pump.yield(); });
    if (const std::unique_ptr<Continuation> kept = std::exchange(opensAgain_, nullptr)) {
        step([&] { rooms_->fit.fit(); });
        step([&] { openAgain(*kept, *this); });
        step([&] { size_.tellIfLess(); });
    }
    if (std::exchange(activated_, true))
        return;
    if (ground_.options.isOn(Setting::ShowWelcomeMsg))
        step([&] { showWelcome(); });
    if (!play_.RetypeActive() && !play_.GameActive())
        step([&] { rooms_->tips.startTipTimer(); });
    for (const auto &tell : std::exchange(onceActivated_, {}))
        step(tell);
    step([&] { tellLeftOut(); });
    if (boardOpened_)
        step([&] { rooms_->fit.offer(); });
}

/// A board was opened. One that came before the window has its size is looked at when it is seen.
void frmMain::offerToFit()
{
    boardOpened_ = true;
    if (activated_)
        ground_.gate.whenFree([this] { rooms_->fit.offer(); });
}

/// Only now somebody sees the board on which some tiles found no room.
void frmMain::tellLeftOut()
{
    const int left = rooms_->progInit.leftOut();
    if (left > 0 && !firstBoardReplaced_)
        ground_.boxes.ShowInfoBox(
            u"Beim Start war nicht genug Platz: %1 nicht gelegt.\nDie Taste \"Wortel\" legt sie auf das ganze Spielfeld."_s
                .arg(left == 1 ? u"1 Wortel wurde"_s : u"%1 Wortele wurden"_s.arg(left)),
            BoxSign::Info, product::name);
}

void frmMain::showWelcome()
{
    QLabel *label = controls_.txtWelcomeMsg;
    label->setText(QString::fromUtf16(welcomeText));
    label->adjustSize();
    label->move((width() - label->width()) / 2, controls_.Picture1->y() - label->height());
    label->show();
    label->raise();
    ground_.clock.wait(500);
    if (playSound(ground_, SoundId::Welcome))
        ground_.pump.yield();
}

void frmMain::HiddenText_Change(const QStringList &arguments)
{
    ground_.gate.whenFree([this, arguments] { openHandedOver(arguments); });
}

void frmMain::openHandedOver(const QStringList &arguments)
{
    rooms_->pointer.letGo(); // a tile that is held lies on the board that goes
    hiddenText_ = arguments;
    UpdateCaption();
}

/// What names no session leaves the board alone.
void frmMain::UpdateCaption()
{
    Procedure step{ground_.log, "UpdateCaption", "frmMain"};
    const auto [there, missing, switches] = command_line::sessionsOf(hiddenText_);
    for (const QString &path : there)
        step([&] { rooms_->sessions.RestoreObjects(path); });
    hiddenText_.clear();
    // This start's own switches have done their work.
    tellNotOpened(missing, cmdLineReady_ ? switches : QStringList());
}

void frmMain::tellNotOpened(const QStringList &missing, const QStringList &switches)
{
    QStringList sentences;
    QString paths;
    for (const QString &path : missing)
        paths += u'\n' + nativePath(path);
    if (!missing.isEmpty())
        sentences << (missing.size() == 1 ? u"Diese Sitzung gibt es nicht:"_s
                                          : u"Diese Sitzungen gibt es nicht:"_s) +
                         paths;
    if (!switches.isEmpty())
        sentences << u"Wortel-Meister läuft schon. Das gilt nur beim ersten Start: "_s + switches.join(u' ');
    if (!sentences.isEmpty())
        tellLater(sentences.join(u"\n\n"_s));
}

/// Not in the middle of something else, and not before the window is in use.
void frmMain::tellLater(const QString &text)
{
    const auto tell = [this, text] { ground_.boxes.plainBox(Boxes::Icon::Warning, product::name, text); };
    if (activated_)
        ground_.gate.whenFree(tell);
    else
        onceActivated_.push_back(tell);
}

void frmMain::closeEvent(QCloseEvent *event)
{
    event->setAccepted(ended_);
    ground_.gate.requestClose();
}

/// Each question that is open is answered as if with Esc, also one that comes behind another.
void frmMain::closeBoxes()
{
    while (QWidget *popup = QApplication::activePopupWidget())
        if (!popup->close())
            break;
    for (QWidget *window : QApplication::topLevelWidgets())
        if (auto *dialog = qobject_cast<QDialog *>(window); dialog != nullptr && dialog->isVisible())
            dialog->reject();
}

void frmMain::unload()
{
    ended_ = true;
    boxCloser_.stop();
    Form_QueryUnload();
    Form_Unload();
    close();
    emit unloaded();
}

void frmMain::Form_QueryUnload()
{
    Procedure step{ground_.log, "Form_QueryUnload", "frmMain"};
    bool played = false;
    step([&] { played = playSound(ground_, SoundId::GoodBye); });
    if (played)
        step([&] { ground_.clock.wait(1000); });
    step([&] { rooms_->tips.stopTimers(); });
    step([&] { rooms_->game.stopTimers(); });
    step([&] { crash_filter::remove(); });
    step([&] {
        for (QWidget *window : QApplication::topLevelWidgets())
            if (window != this && window->isVisible())
                window->close();
    });
}

void frmMain::Form_Unload()
{
    Procedure step{ground_.log, "Form_Unload", "frmMain"};
    step([&] { rooms_->store.takeAll(); });
    step([&] { rooms_->homes = {}; });
    step([&] { rooms_->background.remove(); });
    step([&] {
        if (!ground_.options.storedIsOn(Setting::UseBackup))
            return;
        const QString path = Backup::file(ground_);
        KillFile(path, &ground_.log);
        ground_.log.WriteLog(u"Event: Backup-file "_s + path + u" closed"_s);
        ground_.log.WriteLog(u"Event: Backup-file "_s + path + u" deleted"_s);
    });
    step([&] { ground_.log.WriteLog(u"Event: Application ended successfully"_s); });
    step([&] { ground_.log.end(); });
    step([] { ShowTaskBar(true); });
}

/// The board that was recovered or opened is the first state that undo knows.
void frmMain::loadKept()
{
    Rooms &r = *rooms_;
    if (!facts_.CanStore)
        r.backup.failureIsKnown();
    // What did not fit on the first board does not matter once another has taken its place.
    connect(&r.news, &BoardNews::opened, this, [this] { firstBoardReplaced_ = true; });
    connect(&r.news, &BoardNews::committed, this, [this] { firstBoardReplaced_ = true; });
    if (std::exchange(facts_.RecoverOnStart, false))
        r.backup.RestoreMyObjects(Backup::file(ground_));
    UpdateCaption();
    r.undo.ClearCollBuffer();
    emit menusStale();
}
