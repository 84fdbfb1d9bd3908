// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QTimer>
#include <QWidget>

/// One line over the lower band that goes by itself. It takes no press and no focus, and looks for a place
/// where it covers nothing but the board: beside open lists and reports, or above them. What is too long for
/// that place is elided. A child of the window that the board stands in.
class ShortNote : public QWidget
{
    Q_OBJECT

public:
    static constexpr int staysFor = 3000; ///< milliseconds

    /// `band` is what the note stands on.
    ShortNote(const QWidget &board, QWidget &band);

    /// Shows `text`, plain and in one line, in the place of an earlier note.
    void tell(const QString &text);
    QString text() const { return text_; }

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    /// Told before the window is seen, the note waits for it.
    void showEvent(QShowEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QList<QRect> covered() const;
    void place();

    const QWidget &board_;
    const QWidget &band_;
    QString text_;
    QTimer timer_;
};
