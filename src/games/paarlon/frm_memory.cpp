// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
// The window itself, its intro and its end; what happens in a game stands in frm_memory_game.cpp.
#include "games/paarlon/frm_memory.h"

#include "games/paarlon/best_lists.h"
#include "games/paarlon/memory_card.h"
#include "platform/boxes.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/gate.h"
#include "platform/ground.h"
#include "platform/procedure.h"
#include "platform/rnd.h"
#include "platform/sounds.h"
#include "platform/text.h"
#include "platform/word_lists.h"
#include "widgets/colour.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr auto form = "frmMemory";
/// Window systems keep a dialog above its owner, and other windows not.
constexpr Qt::WindowFlags windowKind = Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                                       Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint;
constexpr int frameTime = 16;        ///< milliseconds; the ball moves once each millisecond
constexpr int longestFrame = 100;    ///< after a longer halt the ball goes on where it was
constexpr int labelBelowBall = 1200; ///< twips
constexpr int titleBarHeight = 30;   ///< pixels, about what window managers take

} // namespace

frmMemory::frmMemory(Ground &ground, const WordLists &lists, BestLists &best, QWidget *owner)
    : Backdrop(owner, windowKind)
    , ground_(ground)
    , lists_(lists)
    , best_(best)
    , controls_(makeMemoryControls(this))
    , rules_(ground.rnd, ground.clock)
{
    Procedure step{ground_.log, "Form_Load", form};
    setObjectName(u"frmMemory"_s);
    setMinimumSize(MemoryControls::designSize * 3 / 4 / MemoryControls::twipsPerPixel);
    intro_.setInterval(frameTime);
    intro_.setTimerType(Qt::PreciseTimer);
    tmrTime_.setInterval(1000);
    tmrFlipMorpheme_.setSingleShot(true);
    wireControls();

    MemoryScores &scores = best_.scores();
    step([&] { tmrFlipMorpheme_.setInterval(scores.visibleTime()); });
    step([&] { BestScore_ = scores.Score(); });
    controls_.txtScores[4]->setText(QString::number(BestScore_));
    step([&] { controls_.txtScores[5]->setText(u"%1 seconds"_s.arg(scores.Time())); });
}

void frmMemory::wireControls()
{
    connect(&intro_, &QTimer::timeout, this, &frmMemory::moveBall);
    connect(&tmrTime_, &QTimer::timeout, this, &frmMemory::tmrTime_Timer);
    connect(&tmrFlipMorpheme_, &QTimer::timeout, this, &frmMemory::tmrFlipMorpheme_Timer);

    const auto whenPlayed = [this](auto action) {
        return throughGate(ground_.gate, Gate::Way::Play, action);
    };
    connect(controls_.Anfangen, &QPushButton::clicked, this, &frmMemory::Anfangen_Click);
    connect(controls_.Abbrechen, &QPushButton::clicked, this, &QWidget::close);
    connect(controls_.Command2, &QPushButton::clicked, this, whenPlayed([this](bool) { Command2_Click(); }));
    connect(controls_.Command3, &QPushButton::clicked, this,
            whenPlayed([this](bool) { best_.ShowBestTimes({}, checkedKind()); }));
    for (int card = 0; card < MemoryRules::cards; ++card) {
        MemoryCard *const control = controls_.picMorphemeCard[static_cast<std::size_t>(card)];
        connect(control, &MemoryCard::clicked, this,
                whenPlayed([this, card](bool) { picMorphemeCard_Click(card); }));
        connect(control, &MemoryCard::arrowPressed, this, &frmMemory::moveCurrentCard);
    }
}

void frmMemory::Anfangen_Click()
{
    if (waitsForList_) { // with another kind, perhaps
        ground_.gate.cancelWork();
        ground_.gate.whenFree([this, self = QPointer(this)] {
            if (!self.isNull() && isVisible())
                startGame();
        });
    } else if (const Gate::Passage passage = ground_.gate.enter(Gate::Way::Play)) {
        startGame();
    }
}

/// A developer's way to the list of the prefixes, with a score of one's own.
void frmMemory::Command2_Click()
{
    Procedure step{ground_.log, "Command2_Click", form};
    const QString answer = ground_.boxes.ShowIBox(u"Enter a score"_s, BoxStyle::Plain, u"80"_s, u"Score"_s);
    step([&] { rules_.setClicks(CLng(CDbl(answer))); });
    step([&] { best_.GetBestTimes(prefixMemory, rules_.Clicks(), answer + u"very good: "_s); });
}

const MemoryKind &frmMemory::checkedKind() const
{
    for (std::size_t i = 0; i < memoryKinds.size(); ++i)
        if (controls_.OptMorphemeType[i]->isChecked())
            return memoryKinds[i];
    return *kind_;
}

// Colours
// ------------------------------------------------------------------------------------------------------------

/// Face, back and solved card are of one colour, so that only what is printed tells them apart.
void frmMemory::setKindColours(const MemoryKind &kind)
{
    kind_ = &kind;
    const Colour card = kind.tile->back;
    colours_ = {card, card, kind.tile->text, card, card};
    setWindowTitle(QString::fromUtf16(kind.caption));
}

/// The letters of the side panel.
void frmMemory::setInk(const QColor &ink)
{
    ink_ = ink;
    QPalette palette = controls_.Picture1->palette();
    palette.setColor(QPalette::WindowText, ink);
    controls_.Picture1->setPalette(palette);
    for (QRadioButton *option : controls_.OptMorphemeType) // they have a style sheet, which inherits nothing
        option->setPalette(palette);
}

// Intro
// ------------------------------------------------------------------------------------------------------------

void frmMemory::Display(const MemoryKind &kind)
{
    Procedure step{ground_.log, "Display", form};
    step([&] { controls_.picCover->hide(); });
    step([&] { setKindColours(kind); });
    step([&] {
        controls_.Label2->setText(kind.listName != nullptr ? QString::fromUtf16(kind.listName)
                                                           : UCase(listBaseName(lists_.CurrentWortelFile)));
        controls_.Label2->show();
        for (std::size_t i = 0; i < memoryKinds.size(); ++i)
            controls_.OptMorphemeType[i]->setChecked(&memoryKinds[i] == &kind);
        setColour(toQColor(colours_.FaceDownColor));
        controls_.Picture1->setColour(toQColor(colours_.FaceDownColor));
        setInk(toQColor(colours_.TextColor));
    });
    step([&] { showCards(); });
    step([&] {
        ball_.emplace(ground_.rnd());
        ballMoved_ = ground_.clock.elapsed();
        openOnScreen();
        intro_.start();
    });
}

void frmMemory::openOnScreen()
{
    if (!isVisible()) {
        const QRect room = screen()->availableGeometry();
        resize(MemoryControls::openingSize(room.size() - QSize(0, titleBarHeight)));
        move(room.left() + (room.width() - width()) / 2,
             room.top() + (room.height() - titleBarHeight - height()) / 2);
    }
    if (isVisible())
        raise();
    if (isMinimized())
        showNormal();
    show();
    activateWindow();
}

void frmMemory::moveBall()
{
    if (!ball_ || !ground_.gate.letsIn(Gate::Way::Look))
        return;
    const qint64 now = ground_.clock.elapsed();
    const qint64 moves = std::min<qint64>(now - ballMoved_, longestFrame);
    ballMoved_ = now;
    for (qint64 move = 0; move < moves; ++move) {
        if (controls_.Anfangen->isEnabled() || ball_->BounceCount == BouncingBall::lastBounce) {
            endIntro();
            return;
        }
        const BouncingBall::Moved moved = ball_->move(CanvasHeight_, MemoryControls::coverWidth);
        if (moved.bounced)
            playSound(ground_, SoundId::BallBounces);
        if (moved.left)
            ballHasLeft();
    }
    const MemoryControls::Scale scale = MemoryControls::scaleFor(size());
    controls_.Label2->move(scale.pixels(static_cast<int>(ball_->X)),
                           scale.pixels(static_cast<int>(ball_->Y) + labelBelowBall));
    update();
}

/// Only in a window much higher than wide: elsewhere the ball has bounced ten times before.
void frmMemory::ballHasLeft()
{
    controls_.Anfangen->setEnabled(true);
    controls_.picCover->show();
    setColour(Qt::black);
    controls_.Command3->show();
}

void frmMemory::endIntro()
{
    intro_.stop();
    ball_.reset();
    update();
    ground_.gate.whenFree([this, self = QPointer(this)] {
        if (self.isNull() || !isVisible())
            return;
        controls_.Anfangen->setEnabled(true);
        startGame();
        controls_.Label2->move(controls_.Label1->pos());
        controls_.Label2->hide();
    });
}

void frmMemory::paintEvent(QPaintEvent *event)
{
    Backdrop::paintEvent(event);
    if (!ball_)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(toQColor(ball_->color));
    const double scale = MemoryControls::scaleFor(size()).pixelsPerTwip;
    const double radius = ball_->Radius * scale * MemoryControls::twipsPerPixel;
    painter.drawEllipse(QPointF(ball_->X * scale, ball_->Y * scale), radius, radius);
}

void frmMemory::resizeEvent(QResizeEvent *)
{
    layOutMemoryControls(controls_, size());
    setInk(ink_); // the style sheets that were laid anew have taken it
    CanvasHeight_ = static_cast<int>(height() / MemoryControls::scaleFor(size()).pixelsPerTwip);
}

// End
// ------------------------------------------------------------------------------------------------------------

void frmMemory::keyPressEvent(QKeyEvent *event)
{
    auto *button = qobject_cast<QPushButton *>(focusWidget());
    if (event->key() == Qt::Key_Escape)
        close();
    else if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && button != nullptr &&
             !event->isAutoRepeat())
        button->click();
    else
        event->ignore();
}

/// The window goes at once; its object stays until nothing of it is on the stack.
void frmMemory::closeEvent(QCloseEvent *event)
{
    for (QTimer *timer : {&intro_, &tmrTime_, &tmrFlipMorpheme_})
        timer->stop();
    if (waitsForList_)
        ground_.gate.cancelWork();
    event->accept();
    if (ground_.gate.isClosing()) { // nothing waits at the gate any more
        Form_Unload();
        return;
    }
    ground_.gate.whenFree([this, self = QPointer(this)] {
        if (!self.isNull())
            Form_Unload();
    });
}

void frmMemory::Form_Unload()
{
    if (std::exchange(isUnloaded_, true))
        return;
    Procedure step{ground_.log, "Form_Unload", form};
    step([&] { best_.scores().saveColours(colours_); });
    emit unloaded();
}
