// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

/// A progress bar that doubles as a status line: a caption over a bar that runs from 0 to a maximum.
class GameProgressBar : public QWidget
{
    Q_OBJECT

public:
    explicit GameProgressBar(QWidget *parent = nullptr);

    int maximum() const { return maximum_; }
    /// At least 1.
    void setMaximum(int maximum);
    int value() const { return value_; }
    /// Kept within 0 to the maximum; emits ValueChanged if it differs.
    void setValue(int value);
    QString Caption() const { return caption_; }
    void setCaption(const QString &caption);
    /// Value 0, the caption "Bitte warten...", and hidden.
    void resetAndHide();

signals:
    void ValueChanged(int value);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int maximum_ = 1;
    int value_ = 0;
    QString caption_;
};
