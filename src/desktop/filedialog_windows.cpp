#include "desktop/filedialog.h"

#include <windows.h>

namespace plotvue {

namespace {

// While an object of this class exists, the process sees an empty key in place of the user's part of the
// registry, so the toolkit finds no settings. It cannot write any either: the empty key is volatile, and
// Windows creates no lasting key in a volatile one. Such an object exists only while the toolkit constructs
// or destroys a dialog, because the system's dialog needs the registry while it is open.
class WithoutSettings {
public:
    WithoutSettings()
    {
        if (RegCreateKeyExW(HKEY_CURRENT_USER, L"Software\\PlotVue without settings", 0, nullptr,
                            REG_OPTION_VOLATILE, KEY_ALL_ACCESS, nullptr, &empty_, nullptr) == ERROR_SUCCESS)
            RegOverridePredefKey(HKEY_CURRENT_USER, empty_);
    }
    ~WithoutSettings()
    {
        RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
        if (!empty_)
            return;
        RegDeleteKeyW(empty_, L"");
        RegCloseKey(empty_);
    }
    WithoutSettings(const WithoutSettings&) = delete;

private:
    HKEY empty_ = nullptr;
};

} // namespace

void keepNoSettings()
{
    // Nothing to do: on Windows, the system's own dialogs ask for files and printers, not the toolkit's.
}

FileDialog makeFileDialog(QWidget& window)
{
    const WithoutSettings none;
    return FileDialog(
        new QFileDialog(&window)); // the system's own, which notes folders in the registry itself
}

void DeleteFileDialog::operator()(QFileDialog* dialog) const
{
    const WithoutSettings none;
    delete dialog;
}

} // namespace plotvue
