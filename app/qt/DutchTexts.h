#pragma once

#include <QTranslator>

namespace veltrix {

/// The toolkit's own texts in Dutch: file dialogs, standard buttons, menus of text fields and
/// scroll bars. It needs no file beside the program and no Dutch desktop. Install it in the
/// application before the first window.
class DutchTexts : public QTranslator {
    Q_OBJECT

public:
    using QTranslator::QTranslator;

    [[nodiscard]] QString translate(const char* context, const char* sourceText,
                                    const char* disambiguation = nullptr,
                                    int n = -1) const override;

    [[nodiscard]] bool isEmpty() const override { return false; }
};

} // namespace veltrix
