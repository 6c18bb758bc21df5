#include "app/qt/QtDialogs.h"

#include "document/FileCommands.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QWidget>

namespace veltrix {

namespace {

QString plainText(const std::string& text) {
    return QString::fromStdString(text).replace("\r\n", "\n");
}

/// "Description|*.vtx" as the toolkit writes it: "Description (*.vtx)".
QString toolkitFilter(const std::string& filter) {
    const QString text = QString::fromStdString(filter);
    return text.section('|', 0, 0) + " (" + text.section('|', 1, 1) + ")";
}

std::optional<std::string> chosen(const QString& file) {
    if (file.isEmpty())
        return std::nullopt;
    return file.toStdString();
}

} // namespace

Answer QtMessageBox::Show(const std::string& text, const std::string& title, Buttons buttons,
                          Icon icon) {
    QMessageBox box(icon == Icon::Information ? QMessageBox::Information : QMessageBox::NoIcon,
                    QString::fromStdString(title), plainText(text), QMessageBox::NoButton,
                    &parent_);
    // A socket's name from a document is shown as it is, whatever it looks like.
    box.setTextFormat(Qt::PlainText);
    if (buttons == Buttons::Ok) {
        box.addButton("OK", QMessageBox::AcceptRole);
        box.exec();
        return Answer::Ok;
    }
    QPushButton* yes = box.addButton("Ja", QMessageBox::YesRole);
    QPushButton* no = box.addButton("Nee", QMessageBox::NoRole);
    QPushButton* cancel = buttons == Buttons::YesNoCancel
                              ? box.addButton("Annuleren", QMessageBox::RejectRole)
                              : nullptr;
    box.setDefaultButton(yes);
    box.setEscapeButton(cancel != nullptr ? cancel : no);
    box.exec();
    if (box.clickedButton() == yes)
        return Answer::Yes;
    return cancel != nullptr && box.clickedButton() != no ? Answer::Cancel : Answer::No;
}

std::optional<std::string> QtFileDialog::ShowOpen(const std::string& filter) {
    return chosen(QFileDialog::getOpenFileName(
        &parent_, "Openen", QString::fromStdString(FileName()), toolkitFilter(filter)));
}

std::optional<std::string> QtFileDialog::ShowSave(const std::string& filter) {
    // Whether a file may be overwritten is asked by the program, in its own words.
    return chosen(QFileDialog::getSaveFileName(
        &parent_, "Bewaren als", QString::fromStdString(FileName()), toolkitFilter(filter), nullptr,
        QFileDialog::DontConfirmOverwrite));
}

void QtFaultNotice::Show(const std::string& text) {
    if (box_ != nullptr)
        box_->close();
    box_ = new QMessageBox(QMessageBox::NoIcon, QString::fromStdString(ProgramTitle),
                           plainText(text), QMessageBox::NoButton, &parent_);
    box_->setTextFormat(Qt::PlainText);
    box_->addButton("OK", QMessageBox::AcceptRole);
    box_->setAttribute(Qt::WA_DeleteOnClose);
    box_->setModal(false);
    box_->show();
}

} // namespace veltrix
