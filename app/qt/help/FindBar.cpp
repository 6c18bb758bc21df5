#include "app/qt/help/FindBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>
#include <QTextCursor>
#include <QTextEdit>
#include <QToolButton>

namespace veltrix {

namespace {

constexpr int wordWidth = 200; // pixels

} // namespace

FindBar::FindBar(QTextEdit& page, QWidget* parent)
    : QWidget(parent), page_(page), word_(new QLineEdit(this)), result_(new QLabel(this)) {
    setObjectName("findBar");
    word_->setObjectName("word");
    word_->setMaximumWidth(wordWidth);
    word_->setClearButtonEnabled(true);
    result_->setObjectName("result");
    auto* label = new QLabel("&Zoeken:", this);
    label->setBuddy(word_);

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(8, 5, 8, 5);
    row->addWidget(label);
    row->addWidget(word_, 1);
    const auto addButton = [&](const char* name, const char* text, const char* tip,
                               void (FindBar::*action)()) {
        auto* button = new QToolButton(this);
        button->setObjectName(name);
        button->setText(text);
        button->setToolTip(tip);
        button->setAccessibleName(tip);
        button->setAutoRaise(true);
        connect(button, &QToolButton::clicked, this, action);
        row->addWidget(button);
    };
    addButton("previous", "Vorige", "Vorige vindplaats (Shift+F3)", &FindBar::FindPrevious);
    addButton("next", "Volgende", "Volgende vindplaats (F3)", &FindBar::FindNext);
    row->addWidget(result_);
    row->addStretch(1);
    addButton("close", "✕", "Zoekbalk sluiten (Esc)", &FindBar::Close);

    connect(word_, &QLineEdit::textChanged, this, &FindBar::findTyped);
    connect(word_, &QLineEdit::returnPressed, this, &FindBar::FindNext);
    connect(
        new QShortcut(QKeySequence("Shift+Return"), word_, nullptr, nullptr, Qt::WidgetShortcut),
        &QShortcut::activated, this, &FindBar::FindPrevious);
    connect(new QShortcut(QKeySequence("Escape"), this, nullptr, nullptr,
                          Qt::WidgetWithChildrenShortcut),
            &QShortcut::activated, this, &FindBar::Close);
    hide();
}

void FindBar::Open() {
    show();
    word_->selectAll();
    word_->setFocus();
}

void FindBar::Close() {
    hide();
    page_.setFocus();
}

void FindBar::FindNext() {
    if (word_->text().isEmpty())
        Open();
    else
        findFrom(page_.textCursor().selectionEnd(), {});
}

void FindBar::FindPrevious() {
    if (word_->text().isEmpty())
        Open();
    else
        findFrom(page_.textCursor().selectionStart(), QTextDocument::FindBackward);
}

void FindBar::findTyped() {
    // A longer word may stand where the shorter one was found.
    findFrom(page_.textCursor().selectionStart(), {});
}

void FindBar::findFrom(int position, QTextDocument::FindFlags flags) {
    QTextCursor here = page_.textCursor();
    if (word_->text().isEmpty()) {
        here.clearSelection();
        page_.setTextCursor(here);
        return tell("", true);
    }
    const QTextDocument& document = *page_.document();
    QTextCursor found = document.find(word_->text(), position, flags);
    const bool around = found.isNull();
    const bool backward = flags.testFlag(QTextDocument::FindBackward);
    if (around)
        found = document.find(word_->text(), backward ? document.characterCount() - 1 : 0, flags);
    if (found.isNull())
        return tell("Niet gevonden", false);
    page_.setTextCursor(found);
    tell(!around ? "" : backward ? "Verder vanaf het einde" : "Verder vanaf het begin", true);
}

void FindBar::tell(const QString& text, bool found) {
    result_->setText(text);
    QPalette colours;
    if (!found) {
        colours.setColor(QPalette::Base, QColor(0xff, 0xdc, 0xd6));
        colours.setColor(QPalette::Text, QColor(0x22, 0x26, 0x2b));
    }
    word_->setPalette(colours);
}

} // namespace veltrix
