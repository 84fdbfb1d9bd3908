// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/handbook/help_window.h"

#include "platform/gate.h"
#include "shell/handbook/help_browser.h"
#include "widgets/gradient.h"

#include <QFile>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QTextDocument>
#include <QToolButton>
#include <QTreeWidget>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>
#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize usualSize{820, 640};
constexpr int contentsWidth = 220;
constexpr int toolHeight = 30;
constexpr int controlText = 13; ///< pixels
constexpr int textStep = 2;     ///< pixels by which the text grows or shrinks
constexpr int frameRoom = 40;   ///< pixels for the window's own frame and title bar

// A window system keeps a dialog, and only a dialog, above the window that it belongs to.
constexpr Qt::WindowFlags windowKind = Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                                       Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint;

constexpr int addressRole = Qt::UserRole;

} // namespace

HelpWindow::HelpWindow(const QString &folder, Gate &gate, QWidget *owner)
    : QWidget(owner, windowKind)
    , gate_(gate)
    , pages_(folder)
    , browser_(new HelpBrowser(pages_, this))
    , contents_(new QTreeWidget(this))
    , searchBox_(new QLineEdit(this))
    , searchState_(new QLabel(this))
{
    setObjectName(u"HelpWindow"_s);
    setWindowTitle(u"Wortel-Meister - Hilfe"_s);
    QFont letters = font();
    letters.setPixelSize(controlText);
    setFont(letters);

    auto *halves = new QSplitter(this);
    halves->setChildrenCollapsible(false);
    halves->addWidget(contents_);
    halves->addWidget(browser_);
    halves->setStretchFactor(1, 1);
    halves->setSizes({contentsWidth, usualSize.width() - contentsWidth});
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(makeTools());
    column->addWidget(halves, 1);

    browser_->setObjectName(u"page"_s);
    browser_->setAccessibleName(u"Seite des Handbuchs"_s);
    fillContents();
    connect(contents_, &QTreeWidget::currentItemChanged, this,
            [this](const QTreeWidgetItem *item) { followContents(item); });
    connect(contents_, &QTreeWidget::itemClicked, this,
            [this](const QTreeWidgetItem *item) { followContents(item); });
    connect(browser_, &QTextBrowser::sourceChanged, this, &HelpWindow::markPage);
    connect(browser_, &QTextBrowser::sourceChanged, searchState_, &QLabel::clear);
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);

    if (pages_.pages().isEmpty())
        browser_->setPlainText(u"Das Handbuch fehlt. Es gehört in den Ordner\n\n"_s + folder);
    startAfresh();
}

HelpWindow::~HelpWindow()
{
    // The browser asks the pages for its pictures, so it goes before them.
    delete std::exchange(browser_, nullptr);
}

void HelpWindow::startAfresh()
{
    searchBox_->clear();
    contents_->collapseAll();
    if (!pages_.pages().isEmpty())
        browser_->setSource(pages_.address(HelpPages::startPage));
    browser_->moveCursor(QTextCursor::Start);
    browser_->clearHistory();
    browser_->setFocus();
    placeBesideBoard();
}

// Tools
// -----------------------------------------------------------------------------------------------------------

QWidget *HelpWindow::makeTools()
{
    auto *panel = new GradientPanel(this);
    auto *row = new QHBoxLayout(panel);
    row->setContentsMargins(6, 4, 6, 4);
    row->setSpacing(4);

    auto *back = makeIconTool("back", u":/icons/back.svg"_s, u"Zurück"_s, QKeySequence::Back);
    auto *forward = makeIconTool("forward", u":/icons/forward.svg"_s, u"Vor"_s, QKeySequence::Forward);
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(browser_, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
    connect(browser_, &QTextBrowser::forwardAvailable, forward, &QWidget::setEnabled);
    connect(back, &QToolButton::clicked, browser_, &QTextBrowser::backward);
    connect(forward, &QToolButton::clicked, browser_, &QTextBrowser::forward);

    makeSearch();
    auto *previous = makeTextTool("previous", u"▲"_s, u"Vorige Fundstelle"_s, QKeySequence(u"Shift+F3"_s));
    auto *next = makeTextTool("next", u"▼"_s, u"Nächste Fundstelle"_s, QKeySequence(u"F3"_s));
    connect(previous, &QToolButton::clicked, this, [this] { searchOn(true); });
    connect(next, &QToolButton::clicked, this, [this] { searchOn(false); });

    auto *smaller = makeTextTool("smaller", u"A–"_s, u"Kleinere Schrift"_s, QKeySequence::ZoomOut);
    auto *larger = makeTextTool("larger", u"A+"_s, u"Größere Schrift"_s, QKeySequence::ZoomIn);
    connect(smaller, &QToolButton::clicked, this, [this] { browser_->growText(-textStep); });
    connect(larger, &QToolButton::clicked, this, [this] { browser_->growText(textStep); });
    auto *print =
        makeIconTool("print", u":/icons/menu/24.svg"_s, u"Diese Seite drucken"_s, QKeySequence::Print);
    connect(print, &QToolButton::clicked, this, &HelpWindow::print);
    print->setEnabled(!pages_.pages().isEmpty());

    for (QWidget *tool :
         std::initializer_list<QWidget *>{back, forward, searchBox_, previous, next, searchState_})
        row->addWidget(tool);
    row->addStretch(1);
    for (QWidget *tool : {smaller, larger, print})
        row->addWidget(tool);
    return panel;
}

QToolButton *HelpWindow::makeTool(const char *name, const QString &tip, const QKeySequence &key)
{
    auto *tool = new QToolButton(this);
    tool->setObjectName(QLatin1String(name));
    tool->setAccessibleName(tip);
    tool->setToolTip(u"%1 (%2)"_s.arg(tip, key.toString(QKeySequence::NativeText)));
    tool->setShortcut(key);
    tool->setFixedHeight(toolHeight);
    tool->setMinimumWidth(toolHeight + 4);
    tool->setFocusPolicy(Qt::TabFocus);
    return tool;
}

QToolButton *HelpWindow::makeIconTool(const char *name, const QString &icon, const QString &tip,
                                      const QKeySequence &key)
{
    QToolButton *tool = makeTool(name, tip, key);
    tool->setIcon(QIcon(icon));
    tool->setIconSize({20, 20});
    return tool;
}

QToolButton *HelpWindow::makeTextTool(const char *name, const QString &text, const QString &tip,
                                      const QKeySequence &key)
{
    QToolButton *tool = makeTool(name, tip, key);
    tool->setText(text);
    tool->setShortcut(key); // setting a text drops the key
    return tool;
}

void HelpWindow::makeSearch()
{
    searchBox_->setObjectName(u"search"_s);
    searchBox_->setAccessibleName(u"Suchen"_s);
    searchBox_->setPlaceholderText(u"Suchen"_s);
    searchBox_->setClearButtonEnabled(true);
    searchBox_->setMaxLength(100);
    searchBox_->setFixedSize(190, toolHeight);
    searchBox_->setToolTip(u"Wort eingeben und die Eingabetaste drücken (Strg+F)"_s);
    searchState_->setObjectName(u"searchState"_s);
    searchState_->setTextFormat(Qt::PlainText);
    searchState_->setStyleSheet(u"color: #a00000; font-weight: bold"_s);
    connect(searchBox_, &QLineEdit::textChanged, searchState_, &QLabel::clear);
    connect(searchBox_, &QLineEdit::returnPressed, this, [this] { searchOn(false); });
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this, [this] {
        searchBox_->setFocus();
        searchBox_->selectAll();
    });
}

// Contents
// --------------------------------------------------------------------------------------------------------

void HelpWindow::fillContents()
{
    contents_->setObjectName(u"contents"_s);
    contents_->setAccessibleName(u"Inhalt"_s);
    contents_->setHeaderHidden(true);
    contents_->setFont(font()); // lists have a font of their own
    contents_->setMinimumWidth(120);
    for (const HelpPage &page : pages_.pages()) {
        auto *item = new QTreeWidgetItem(contents_, {page.title});
        item->setData(0, addressRole, pages_.address(page.file));
        item->setToolTip(0, page.title);
        for (const HelpSection &section : page.sections) {
            auto *part = new QTreeWidgetItem(item, {section.title});
            part->setData(0, addressRole, pages_.address(page.file, section.anchor));
            part->setToolTip(0, section.title);
        }
    }
}

void HelpWindow::followContents(const QTreeWidgetItem *item)
{
    if (item != nullptr)
        browser_->setSource(item->data(0, addressRole).toUrl());
}

/// Marks the page in the contents, unless one of its sections is marked already.
void HelpWindow::markPage(const QUrl &address)
{
    QTreeWidgetItem *item = contents_->topLevelItem(pages_.indexOf(address));
    if (item == nullptr)
        return;
    const QTreeWidgetItem *marked = contents_->currentItem();
    if (marked != nullptr && marked->parent() == item)
        return;
    const QSignalBlocker quiet(contents_);
    contents_->setCurrentItem(item);
    item->setExpanded(true);
}

// Search
// ----------------------------------------------------------------------------------------------------------

void HelpWindow::searchOn(bool backward)
{
    searchState_->clear();
    const QString text = searchBox_->text().trimmed();
    const auto count = static_cast<int>(pages_.pages().size());
    const int shown = pages_.indexOf(browser_->source());
    if (text.isEmpty() || shown < 0)
        return;
    const auto direction = backward ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    if (browser_->find(text, direction))
        return;
    // The last step comes back to the page that is shown, and searches it from its other end.
    for (int step = 1; step <= count; ++step) {
        const HelpPage &page = pages_.pages()[(shown + (backward ? count - step : step)) % count];
        if (!pageHolds(page, text))
            continue;
        if (step < count)
            browser_->setSource(pages_.address(page.file));
        browser_->moveCursor(backward ? QTextCursor::End : QTextCursor::Start);
        if (browser_->find(text, direction))
            return;
    }
    searchState_->setText(u"nicht gefunden"_s);
}

bool HelpWindow::pageHolds(const HelpPage &page, const QString &text)
{
    const QVariant html = browser_->loadResource(QTextDocument::HtmlResource, pages_.address(page.file));
    QTextDocument document;
    document.setHtml(html.toString());
    return !document.find(text).isNull();
}

// Printing and place
// ----------------------------------------------------------------------------------------------

void HelpWindow::print()
{
    const Gate::Passage open = gate_.openBox();
    if (!open)
        return;
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(windowTitle());
    QPrintDialog dialog(&printer, parentWidget());
    dialog.setWindowTitle(u"Hilfe drucken"_s);
    if (dialog.exec() == QDialog::Accepted && !gate_.isClosing())
        printTo(printer);
}

void HelpWindow::printTo(QPagedPaintDevice &device)
{
    const std::unique_ptr<QTextDocument> paper(browser_->makePaperCopy());
    paper->print(&device);
}

/// At the right edge of the screen, so that much of the board stays in sight.
void HelpWindow::placeBesideBoard()
{
    const QRect room = screen()->availableGeometry();
    resize(usualSize.boundedTo(room.size() - QSize(frameRoom / 2, frameRoom)));
    move(room.right() - width() - frameRoom / 4,
         room.top() + std::max(0, (room.height() - height() - frameRoom) / 2));
}
