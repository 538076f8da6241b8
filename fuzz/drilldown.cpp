// Opens every drill-down window with small files of any bytes, presses its buttons and steps through the
// list. The first line of the input is the chosen-row file, the rest is the list file.
#include "app/screens.h"
#include "files/exchange.h"
#include "fuzz.h"
#include "recording/recordingplatform.h"

#include <filesystem>
#include <fstream>

using namespace plotvue;

namespace {

// A temporary working directory, because the windows read the small files there.
struct Directory {
    Directory()
    {
        std::string path = std::filesystem::temp_directory_path() / "plotvue-XXXXXX";
        std::filesystem::current_path(mkdtemp(path.data()));
    }
    ~Directory()
    {
        const std::filesystem::path path = std::filesystem::current_path();
        std::filesystem::current_path("/");
        std::filesystem::remove_all(path);
    }
};

void write(const char* file, std::string_view bytes)
{
    fuzz::always(static_cast<bool>(std::ofstream(file, std::ios::binary) << bytes << std::flush));
}

void play(const DrillDownDesign& design)
{
    RecordingPlatform platform;
    platform.listener = [](const Event& event) {
        fuzz::always(event.kind != Event::Kind::Error || !event.text.starts_with(u"PlotVue made a mistake"));
    };
    DrillDownWindow window(platform, design);
    platform.run([&] { window.show(); });
    const auto use = [&](auto action) {
        if (!platform.over() && window.loaded())
            action(window.controls());
    };
    for (int type = static_cast<int>(design.types.size()) - 1; type >= 0; --type)
        use([&](Controls& controls) { controls.choose("optSales", type); });
    for (const MessageButton& message : design.buttons)
        use([&](Controls& controls) { controls.press(message.button.name); });
    for (const Name button : {"cmdNext", "cmdNext", "cmdBack", "cmdBack", "cmdBack"})
        use([&](Controls& controls) { controls.press(button); });
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const Directory directory;
    const std::string_view bytes = fuzz::bytesOf(data, size);
    const std::size_t lineEnd = std::min(bytes.find('\n'), size);
    for (const Screen& screen : screens)
        if (const auto* ranked = std::get_if<Ranked>(&screen.window)) {
            write(chosenRowFile, bytes.substr(0, lineEnd));
            write(listFile, bytes.substr(lineEnd));
            play(*ranked->drillDown);
        }
    return 0;
}
