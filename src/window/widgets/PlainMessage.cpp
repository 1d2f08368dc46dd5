#include "window/widgets/PlainMessage.h"

#include <QLabel>

namespace quillet {

void showAsPlainText(QMessageBox& box) {
    box.setTextFormat(Qt::PlainText);
    // The toolkit leaves out the label of the informative text.
    for (auto* label : box.findChildren<QLabel*>()) {
        label->setTextFormat(Qt::PlainText);
    }
}

} // namespace quillet
