#pragma once

#include <QTextDocument>
#include <QWidget>

class QLabel;
class QLineEdit;
class QTextEdit;

namespace veltrix {

/// A bar under a page that looks for a word in it while the user types. At the end of the page it
/// goes on from the beginning.
class FindBar : public QWidget {
    Q_OBJECT

public:
    /// Hidden at first. The page must outlive the bar.
    explicit FindBar(QTextEdit& page, QWidget* parent = nullptr);

    /// Shows the bar, ready for typing.
    void Open();

    /// Hides the bar and gives the keyboard back to the page.
    void Close();

    void FindNext();
    void FindPrevious();

private:
    void findTyped();
    void findFrom(int position, QTextDocument::FindFlags flags);
    void tell(const QString& text, bool found);

    QTextEdit& page_;
    QLineEdit* word_ = nullptr;
    QLabel* result_ = nullptr;
};

} // namespace veltrix
