// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QList>
#include <QString>
#include <QWidget>

class QTimer;
class QToolButton;

/// What a report says.
struct Report
{
    QString title;
    QString line1;
    QString line2;
    QString line3;
    bool boldLine2 = false;
    bool showSmiley = false;
    QList<int> marked; ///< indexes of the letters of line 2 that stand out
};

/// The line of a report that has the word: letters that were written too large or too small stand out.
class WordLine : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;

    void setMarked(const QList<int> &letters);
    const QList<int> &marked() const { return marked_; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QList<int> marked_;
};

/// One window of the report popup. It stands on its lower edge, grows upward out of it, waits, and sinks
/// back. It is a child of the main window and lies over all its other children, so that it never takes the
/// keyboard from the word field. It does not sink while a pointer that was moved onto it rests there; the
/// next key lets it go, so that a pointer that is only forgotten stops nobody.
class ReportWindow : public QWidget
{
    Q_OBJECT

public:
    static constexpr int firstHeight = 90; ///< twips, before it has grown
    static constexpr int lastHeight = 120; ///< twips, to which it sinks

    explicit ReportWindow(QWidget *parent);

    /// Fills the window, with its lower left corner at `foot` (pixels of the parent).
    void setReport(const Report &report, const QPoint &foot);
    /// Grows to the full height, waits `seconds` and sinks. Emits `sunk` at the end.
    void slide(int seconds);
    /// Goes at once, without `sunk`.
    void drop();
    bool eventFilter(QObject *watched, QEvent *event) override;
    /// Pixels with all of its text shown.
    int fullHeight() const { return fullHeight_; }

signals:
    void sunk();
    /// Its time is over, and a pointer that rests on it keeps it up.
    void overstays();
    void closePressed();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    void layOutParts();
    void hold();
    void letGo();
    void grow();
    void sink();
    void setTwips(int twips);

    QWidget *picBackground_;
    QLabel *Label1_;
    QLabel *lblAlert_;
    WordLine *Label2_;
    QLabel *Label3_;
    QLabel *ImgSmiley_;
    QToolButton *Image1_;
    QTimer *frame_;
    QTimer *AlertTimer_;
    QPoint foot_;
    int fullHeight_ = 0;
    int twips_ = 0;
    bool held_ = false;
    bool isOver_ = false; ///< its time has passed
};
