#include "texts/Localized.h"

#include <QCoreApplication>

namespace quillet {

QString localized(const char* englishText) {
    return QCoreApplication::translate("Quillet", englishText);
}

} // namespace quillet
