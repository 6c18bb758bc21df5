#pragma once

#include "tests/app/qt/PrintTo.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QStringList>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <vector>

namespace veltrix::test {

/// The message boxes of a window that are to be seen.
inline QList<QMessageBox*> visibleBoxes(const QWidget& window) {
    QList<QMessageBox*> shown;
    for (auto* box : window.findChildren<QMessageBox*>())
        if (box->isVisible())
            shown << box;
    return shown;
}

/// Answers the boxes and file dialogs that are going to open, one after the other, and keeps what
/// they said. A box that no answer was put ready for fails the test, and is closed so that the test
/// ends.
class BoxAnswers {
public:
    struct Seen {
        QString title;
        QString text;
        QStringList buttons; ///< by the alphabet, since their order is the desktop's to choose
        QString standard;    ///< the button that Enter presses
        QMessageBox::Icon icon = QMessageBox::NoIcon;
        Qt::TextFormat format = Qt::AutoText;
    };

    struct SeenFiles {
        QString title;
        QStringList filters;
        QString folder;
        QString name; ///< already filled in
        bool saves = false;
    };

    BoxAnswers() {
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { look(); });
        timer_.start(1);
    }

    ~BoxAnswers() { EXPECT_TRUE(answers_.empty()) << answers_.size() << " boxes never opened"; }

    BoxAnswers(const BoxAnswers&) = delete;
    BoxAnswers& operator=(const BoxAnswers&) = delete;

    /// The next box is a message box; presses its button of this name.
    void Press(const QString& button) {
        message([button](QMessageBox& box) {
            for (QAbstractButton* each : box.buttons())
                if (each->text() == button)
                    return each->click();
            ADD_FAILURE() << "no button " << button.toStdString();
            box.reject();
        });
    }

    /// The next box is a message box; closes it by its frame.
    void Close() {
        message([](QMessageBox& box) { box.close(); });
    }

    /// The next box is a message box; presses a key over it.
    void PressKey(Qt::Key key) {
        message([key](QMessageBox& box) { QTest::keyClick(&box, key); });
    }

    /// The next box is a file dialog; types a name into it and presses its button.
    void Choose(const QString& name) {
        files([name](QFileDialog& dialog) {
            dialog.findChild<QLineEdit*>("fileNameEdit")->setText(name);
            dialog.findChild<QDialogButtonBox*>()->buttons().first()->click();
        });
    }

    /// The next box is a file dialog; chooses nothing.
    void ChooseNothing() {
        files([](QFileDialog& dialog) { dialog.reject(); });
    }

    std::vector<Seen> boxes;
    std::vector<SeenFiles> dialogs;

private:
    using Answer = std::function<void(QDialog&)>;

    void message(const std::function<void(QMessageBox&)>& answer) {
        answers_.push_back([this, answer](QDialog& dialog) {
            auto* box = qobject_cast<QMessageBox*>(&dialog);
            if (box == nullptr)
                return refuse(dialog);
            Seen seen{box->windowTitle(), box->text(), {}, {}, box->icon(), box->textFormat()};
            for (QAbstractButton* button : box->buttons())
                seen.buttons << button->text();
            seen.buttons.sort();
            if (box->defaultButton() != nullptr)
                seen.standard = box->defaultButton()->text();
            boxes.push_back(seen);
            answer(*box);
        });
    }

    void files(const std::function<void(QFileDialog&)>& answer) {
        answers_.push_back([this, answer](QDialog& dialog) {
            auto* files = qobject_cast<QFileDialog*>(&dialog);
            if (files == nullptr)
                return refuse(dialog);
            SeenFiles seen{files->windowTitle(), files->nameFilters(),
                           files->directory().absolutePath(),
                           files->findChild<QLineEdit*>("fileNameEdit")->text(),
                           files->acceptMode() == QFileDialog::AcceptSave};
            dialogs.push_back(seen);
            answer(*files);
        });
    }

    void look() {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || !dialog->isVisible() || answering_)
            return;
        answering_ = true;
        // Not from here: a timer does not fire again before it is done, and what the answer opens
        // must be seen too.
        QTimer::singleShot(0, &timer_, [this, dialog = QPointer(dialog)] {
            answering_ = false;
            if (dialog == nullptr)
                return;
            if (answers_.empty())
                return refuse(*dialog);
            const Answer answer = answers_.front();
            answers_.pop_front();
            answer(*dialog);
        });
    }

    static void refuse(QDialog& dialog) {
        const auto* box = qobject_cast<QMessageBox*>(&dialog);
        ADD_FAILURE() << "not expected: " << dialog.windowTitle().toStdString() << ": "
                      << (box != nullptr ? box->text().toStdString() : "");
        dialog.reject();
    }

    std::deque<Answer> answers_;
    QTimer timer_;
    bool answering_ = false;
};

} // namespace veltrix::test
