// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTextLayout>
#include <QWidget>

/// Plain text that is wrapped to any width, words that are too long for a line in the middle. Line ends of
/// every kind begin a new line; direction marks cannot turn the paragraph round.
class WrappedText : public QWidget
{
    Q_OBJECT

public:
    explicit WrappedText(const QString &text, QWidget *parent = nullptr);

    QString text() const { return text_; }
    void setColour(const QColor &colour) { colour_ = colour; }
    void setAlignment(Qt::Alignment alignment);

    /// The width of the longest line that the text has of itself, at most `limit` pixels.
    int naturalWidth(int limit) const;
    int heightForWidth(int width) const override;
    bool hasHeightForWidth() const override { return true; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    double layOut(double width) const;

    QString text_;
    QColor colour_{Qt::black};
    Qt::Alignment alignment_ = Qt::AlignLeft;
    mutable QTextLayout layout_;
    mutable double laidOutFor_ = -1;
};
