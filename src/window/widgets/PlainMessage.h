#pragma once

#include <QMessageBox>

namespace quillet {

/// Has the box show its texts as they are, markup and all: names of files and records are among
/// them. To be called once they are set.
void showAsPlainText(QMessageBox& box);

} // namespace quillet
