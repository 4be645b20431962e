#pragma once

#include "controls/buttonrow.h"

#include <algorithm>
#include <iterator>

/// What the macro editor is made of. A place of size 0 is none: the mode hides it.
namespace macrolayout {

inline constexpr int kWidth = 261;
inline constexpr int kHeight = 522;

enum Tag {
    kTagOK = 4096,
    kTagCancel,
    kTagClear,
    kTagClose,
    kTagStartKey,
    kTagSendKey,
    kTagCopy,
    kTagText,
    kTagRecordDelay,
    kTagNoDelay,
    kTagLoop,
};

/// How the dialog is laid out: for a text that is pasted, or for a list of events.
enum class Layout { CopyPaste, Events };

/// Where something lies in each of them.
struct Places
{
    UpRect copyPaste;
    UpRect events;

    constexpr UpRect in(Layout layout) const
    {
        return layout == Layout::CopyPaste ? copyPaste : events;
    }
};

struct LabelRow
{
    const char *text = "";
    Places places;
};

inline constexpr ButtonRow kButtons[] = {
    {"ButtonClear", {64, 85, 135, 38}, kTagClear, "CLEAR", "CLEAR"},
    {"ButtonOK", {64, 48, 135, 38}, kTagOK, "OK", "OK"},
    {"ButtonCancel", {64, 11, 135, 38}, kTagCancel, "CANCEL", "CANCEL"},
    {"ButtonClose", {219, 483, 32, 32}, kTagClose, "", "Close"},
};

enum class Choice {
    ButtonStartKey,
    ButtonSendKey,
    ButtonCopy,
    ButtonText,
    ButtonRecordDelay,
    ButtonNoDelay,
    ButtonLoop,
};

/// The pictures of a box, while it is off and while it is on.
struct BoxPictures
{
    const char *off = "";
    const char *on = "";
};
inline constexpr BoxPictures kCheck{"uncheck", "check"};
inline constexpr BoxPictures kRadio{"radio_n", "radio_d"};

/// A check box or radio button with its label.
struct ChoiceRow
{
    const char *name = ""; ///< the object's
    int tag = 0;
    BoxPictures pictures;
    Places box;
    LabelRow label;
};

enum class Field { Name, Events, StartKey, Text, SendKey, Loop };

struct FieldRow
{
    const char *name = "";        ///< the object's
    const char *description = ""; ///< what it is called for assistive technology
    Places places;
};

// clang-format off
inline constexpr LabelRow kTitle{"Custom Macro", {{10, 497, 130, 15}, {10, 497, 130, 15}}};
inline constexpr LabelRow kName{"Name:", {{20, 422, 50, 15}, {20, 422, 50, 15}}};

/// In the order of Choice.
inline constexpr ChoiceRow kChoices[] = {
    {"ButtonStartKey",    kTagStartKey,    kCheck, {{25, 388, 17, 17}, {}},
     {"Start Key",                 {{50, 390, 100, 15}, {}}}},
    {"ButtonSendKey",     kTagSendKey,     kCheck, {{25, 227, 17, 17}, {}},
     {"Send Key",                  {{50, 230, 100, 15}, {}}}},
    {"ButtonCopy",        kTagCopy,        kRadio, {{24, 196, 18, 18}, {24, 250, 18, 18}},
     {"Copy & Paste(Driver Only)", {{46, 196, 200, 15}, {46, 250, 200, 15}}}},
    {"ButtonText",        kTagText,        kRadio, {{24, 174, 18, 18}, {24, 227, 18, 18}},
     {"Text(Auto Delay)",          {{46, 175, 100, 15}, {46, 230, 100, 15}}}},
    {"ButtonRecordDelay", kTagRecordDelay, kRadio, {{24, 151, 18, 18}, {24, 205, 18, 18}},
     {"Record Delay",              {{46, 154, 100, 15}, {46, 207, 100, 15}}}},
    {"ButtonNoDelay",     kTagNoDelay,     kRadio, {{24, 127, 18, 18}, {24, 180, 18, 18}},
     {"No Delay",                  {{46, 130, 100, 15}, {46, 182, 100, 15}}}},
    {"ButtonLoop",        kTagLoop,        kCheck, {{},                {24, 148, 18, 18}},
     {"Loop",                      {{},                 {50, 150, 50, 15}}}},
};

/// In the order of Field.
inline constexpr FieldRow kFields[] = {
    {"pTextfieldMacroName", "Name",       {{80, 417, 165, 24}, {80, 417, 165, 24}}},
    {"MacroscrollView",     "Events",     {{},                 {15, 272, 230, 140}}},
    {"pStartDisplayView",   "Start key",  {{15, 365, 230, 18}, {}}},
    {"pCopyTextfield",      "Text",       {{15, 273, 230, 90}, {}}},
    {"pSendDisplayView",    "Send key",   {{15, 252, 230, 18}, {}}},
    {"pLoopTextfield",      "Loop count", {{},                 {109, 142, 50, 30}}},
};
// clang-format on

inline constexpr std::size_t kChoiceCount = std::size(kChoices);
inline constexpr std::size_t kFieldCount = std::size(kFields);

constexpr const ChoiceRow &rowOf(Choice choice)
{
    return kChoices[static_cast<std::size_t>(choice)];
}
constexpr const FieldRow &rowOf(Field field)
{
    return kFields[static_cast<std::size_t>(field)];
}

constexpr bool liesInside(UpRect box)
{
    return UpRect{0, 0, kWidth, kHeight}.holds(box);
}
constexpr bool liesInside(const Places &places)
{
    return liesInside(places.copyPaste) && liesInside(places.events);
}

consteval bool tablesHold()
{
    int tag = kTagStartKey;
    for (const ChoiceRow &row : kChoices) {
        if (row.tag != tag++ || !liesInside(row.box) || !liesInside(row.label.places))
            return false;
    }
    for (const ButtonRow &row : kButtons) {
        if (row.tag >= kTagStartKey || !liesInside(row.frame))
            return false;
    }
    return std::ranges::all_of(kFields, [](const FieldRow &row) { return liesInside(row.places); });
}
static_assert(tablesHold(), "choices in the order of their tags, controls inside the dialog");

} // namespace macrolayout
