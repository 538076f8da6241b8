// File dialogs that keep nothing. The toolkit's own remember their folder, their history and their columns:
// in a settings file on Unix, in the registry on Windows.
#pragma once

#include <QFileDialog>

#include <memory>

namespace plotvue {

// Call this at start. After it, the file dialogs that the toolkit opens by itself keep nothing either: on
// Unix the one behind "Print to file"; on Windows there is none.
void keepNoSettings();

struct DeleteFileDialog {
    void operator()(QFileDialog* dialog) const;
};
using FileDialog = std::unique_ptr<QFileDialog, DeleteFileDialog>;

FileDialog makeFileDialog(QWidget& window);

} // namespace plotvue
