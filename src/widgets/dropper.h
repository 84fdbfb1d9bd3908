// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QLineEdit;

/// The word field: a control with one text box. A key that types (neither Enter nor Tab nor a key that
/// gives no character) is announced by `keyTyped`, Enter by `EnterPress`. `Highlight` and `UnHighlight` are
/// the feedback while a tile is dragged over it.
class Dropper : public QWidget
{
    Q_OBJECT

public:
    explicit Dropper(QWidget *parent = nullptr);

    QString Caption() const;
    void setCaption(const QString &text);
    int SelStart() const;
    int SelLength() const;
    /// Kept within the text.
    void select(int start, int length);
    void selectAll();
    void setForeColour(const QColor &colour);
    /// True if the text box has the keyboard focus.
    bool isActiveControl() const;
    void takeFocus();

    void Highlight();
    void UnHighlight();
    bool isHighlighted() const { return highlighted_; }

signals:
    void EnterPress();
    void keyTyped();
    void captionChanged(const QString &text);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QLineEdit *lblprefix_;
    bool highlighted_ = false;
};
