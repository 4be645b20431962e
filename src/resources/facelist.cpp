// Writes, for the drawing of a window, where the faces of the window's controls stand: the places
// are those of the program's own tables, which the faces are later cut out by.

#include "dialogs/aboutcontrols.h"
#include "dialogs/popupcontrols.h"
#include "dialogs/warnonecontrols.h"
#include "dialogs/warntwocontrols.h"
#include "macro/macrolayout.h"
#include "macro/macrowarncontrols.h"
#include "mainview/controltable.h"
#include "panels/bottombarcontrols.h"
#include "panels/charinfocontrols.h"
#include "panels/leftbarcontrols.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace {

/// Which drawing is the face of which control. "#" stands for the control's number: a drawing that
/// has one too is that of the same number.
struct Face
{
    std::string_view control;
    std::string_view drawing;
};

constexpr Face kMainFaces[] = {
    {"Button#", "slot"},
    {"ButtonOK", "command"},
    {"ButtonCancel", "command"},
    {"ButtonApply", "command"},
    {"ButtonRestore", "command"},
    {"ButtonSaveToDevice", "command"},
    {"BtnProfile#", "profile-#"},
    {"BtnMin", "minimise"},
    {"BtnHelp", "help"},
    {"BtnClose", "close"},
    {"BtnProfileMenu", "menu-title"},
    {"BtnToolsMenu", "menu-title"},
    {"BtnHelpMenu", "menu-title"},
    {"chkGameMode", "check-box"},
    {"MSMemoryUsageBar", "gauge"},
};
constexpr Face kBarFaces[] = {
    {"btnDPI", "value"},
    {"dbClickSpeedBar", "track"},
    {"scrollSpeedBar", "track"},
    {"pointSpeedBar", "track"},
    {"advSensXBar", "track-up"},
    {"advSensYBar", "track-up"},
    {"btnColorButton", "swatch-value"},
    {"btnIntensity", "wide-value"},
    {"btnPulsation", "wide-value"},
};
constexpr Face kMessageFaces[] = {
    {"ButtonClose", "close"},
    {"ButtonOK", "command"},
    {"ButtonCancel", "command"},
};
/// Of the dialogs whose buttons are larger than their faces.
constexpr Face kInsetFaces[] = {
    {"ButtonClose", "inset-close"},
    {"ButtonOK", "inset-command"},
    {"ButtonCancel", "inset-command"},
    {"ButtonClear", "inset-command"},
};
constexpr Face kCharacterFaces[] = {
    {"ButtonRegion", "region"},
    {"ButtonOK", "inset-command"},
    {"ButtonCancel", "inset-neighbour"},
    {"ButtonClose", "inset-close"},
};
constexpr Face kProgressFaces[] = {{"WriteToDeviceBar", "gauge"}};

struct Control
{
    std::string_view name;
    UpRect frame;
};
using Controls = std::vector<Control>;

constexpr const ButtonRow &buttonOf(const ButtonRow &row)
{
    return row;
}
constexpr const ButtonRow &buttonOf(const LevelLook &row)
{
    return row.button;
}
constexpr const ButtonRow &buttonOf(const leftbar::LevelRow &row)
{
    return row.bar;
}

template <class Rows>
constexpr void append(Controls &controls, const Rows &rows)
{
    if constexpr (std::is_array_v<Rows>) {
        for (const auto &row : rows)
            append(controls, row);
    } else {
        controls.push_back({buttonOf(rows).name, buttonOf(rows).frame});
    }
}

/// Those of tables and of single rows, in the order in which they lie over each other.
template <class... Rows>
constexpr Controls controlsOf(const Rows &...rows)
{
    Controls controls;
    (append(controls, rows), ...);
    return controls;
}

struct Window
{
    std::string_view drawing;
    int height = 0;
    std::span<const Face> faces;
    Controls (*controls)() = nullptr;
};

constexpr Window kWindows[] = {
    {"main", kMainViewHeight, kMainFaces, [] { return controlsOf(kControlTable); }},
    {"leftbar", leftbar::kInside.height, kBarFaces,
     [] { return controlsOf(leftbar::kDpi, leftbar::kLevels); }},
    {"bottombar", bottombar::kInside.height, kBarFaces,
     [] { return controlsOf(bottombar::kColorButton, bottombar::kLevels); }},
    {"popup", popup::kHeight, kProgressFaces, [] { return controlsOf(popup::kBar); }},
    {"warnone", warnone::kHeight, kMessageFaces, [] { return controlsOf(warnone::kButtons); }},
    {"warntwo", warntwo::kHeight, kMessageFaces, [] { return controlsOf(warntwo::kButtons); }},
    {"about", about::kHeight, kMessageFaces, [] { return controlsOf(about::kButtons); }},
    {"macrowarn", macrowarn::kHeight, kInsetFaces, [] { return controlsOf(macrowarn::kButtons); }},
    {"macro", macrolayout::kHeight, kInsetFaces, [] { return controlsOf(macrolayout::kButtons); }},
    {"charinfo", charinfo::kHeight, kCharacterFaces, [] { return controlsOf(charinfo::kButtons); }},
};

constexpr bool isNumber(std::string_view text)
{
    return std::ranges::all_of(text, [](char digit) { return digit >= '0' && digit <= '9'; });
}

/// The number of a control whose name is the pattern with that for its "#"; else empty.
constexpr std::string_view numberIn(std::string_view name, std::string_view pattern)
{
    const std::string_view kind = pattern.substr(0, pattern.find('#'));
    if (kind.size() == pattern.size() || !name.starts_with(kind))
        return {};
    const std::string_view rest = name.substr(kind.size());
    return isNumber(rest) ? rest : std::string_view();
}

constexpr bool isFaceOf(const Face &face, std::string_view control)
{
    return face.control == control || !numberIn(control, face.control).empty();
}

constexpr const Face *faceOf(const Window &window, std::string_view control)
{
    const auto face = std::ranges::find_if(
        window.faces, [control](const Face &row) { return isFaceOf(row, control); });
    return face == window.faces.end() ? nullptr : &*face;
}

consteval bool everyControlHasAFace()
{
    return std::ranges::all_of(kWindows, [](const Window &window) {
        return std::ranges::all_of(window.controls(), [&window](const Control &control) {
            return faceOf(window, control.name);
        });
    });
}
static_assert(everyControlHasAFace(), "the drawings have a face for each row of the tables");

std::string drawingOf(const Window &window, const Control &control)
{
    const Face &face = *faceOf(window, control.name);
    std::string drawing(face.drawing);
    if (const auto mark = drawing.find('#'); mark != std::string::npos)
        drawing.replace(mark, 1, numberIn(control.name, face.control));
    return drawing;
}

void write(std::ostream &file, const Window &window)
{
    file << "<svg xmlns=\"http://www.w3.org/2000/svg\"\n"
            "     xmlns:xlink=\"http://www.w3.org/1999/xlink\">\n"
            "  <defs>\n"
            "    <g id=\"placed-faces\">\n";
    for (const Control &control : window.controls()) {
        const QRect place = UpHost(window.height).down(control.frame);
        file << "      <use xlink:href=\"#" << drawingOf(window, control) << "\" x=\"" << place.x()
             << "\" y=\"" << place.y() << "\"/>\n";
    }
    file << "    </g>\n"
            "  </defs>\n"
            "</svg>\n";
}

} // namespace

int main(int argc, char **argv)
{
    constexpr int arguments = 3;
    const auto *const window = std::ranges::find(
        kWindows, std::string_view(argc == arguments ? argv[1] : ""), &Window::drawing);
    if (window == std::end(kWindows)) {
        std::fprintf(stderr, "usage: facelist DRAWING PLACES.svg\n");
        return 1;
    }
    std::ofstream file(argv[2]);
    write(file, *window);
    return file.flush() ? 0 : 1;
}
