// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QTimer>
#include <QWidget>

/// One line over the foot of a window that goes by itself. It takes no press and no focus. In the main window
/// it stands on the lower band and looks for a place where it covers nothing but the board: beside open
/// lists, reports, boxes and menus, or above them. What is too long for that place is elided.
class ShortNote : public QWidget
{
    Q_OBJECT

public:
    static constexpr int staysFor = 3000; ///< milliseconds

    /// A note on the band of the window that both stand in.
    ShortNote(const QWidget &board, QWidget &band);
    /// A note on the lower edge of a window that has no board.
    explicit ShortNote(QWidget *window);

    /// Shows `text`, plain and in one line, in the place of an earlier note.
    void tell(const QString &text);
    QString text() const { return text_; }

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    /// Told before the window is seen, the note waits for it.
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void moveEvent(QMoveEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QList<QRect> covered() const;
    void place();
    void refreshUnder(const QRect &place);

    ShortNote(QWidget *window, const QWidget *board, const QWidget *band);
    const QWidget *board_; ///< or nullptr, and so the band
    const QWidget *band_;
    QString text_;
    QTimer timer_;
};
