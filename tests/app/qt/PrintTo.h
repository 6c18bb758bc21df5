#pragma once

#include <QString>
#include <QStringList>

#include <ostream>

// How a test that failed shows the toolkit's texts; the test library finds these by their name.

inline void PrintTo(const QString& text, std::ostream* stream) {
    *stream << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QStringList& texts, std::ostream* stream) {
    *stream << '[' << texts.join(", ").toStdString() << ']';
}
