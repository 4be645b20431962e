#include "daemon/onboardprofile.h"

#include "model/fieldio.h"
#include "platform/plist.h"

namespace {

constexpr char kNumberKey[] = "PROFILE_NUMBER";

/// A button plays macro slot n with the code 256 + n; game commands begin at 4096.
constexpr FunctionCode kFirstMacroCode = 256;

void addMacro(const ProfileInfo &profile, FunctionCode code, plist::Dictionary to)
{
    const FunctionCode slot = code - kFirstMacroCode;
    if (code < kFirstMacroCode || slot >= kMacroCount)
        return;
    const std::string key = numberedKey(kMacroKey, slot + 1);
    writeFields(macroFields(), &MacroAt(profile, slot), to.addDictionary(key.c_str()));
}

std::string integersOf(const Field &field, plist::Dictionary from)
{
    std::string text;
    for (unsigned number = 1; number <= field.count; ++number) {
        const std::string key = numberedKey(field.key, number);
        text += ' ' + key + '=' + std::to_string(from.integer(key.c_str()).value_or(0));
    }
    return text;
}

} // namespace

std::string encodeProfile(const ProfileInfo &profile, unsigned number)
{
    const plist::Document document;
    document.root().setInteger(kNumberKey, static_cast<std::int32_t>(number));
    writeFields(profileFields(), &profile, document.root());
    for (const FunctionCode code : profile.BUTTON)
        addMacro(profile, code, document.root());
    return document.toXml();
}

std::string describeProfile(std::string_view onboardBytes)
{
    const auto document = plist::Document::parse(onboardBytes);
    const auto root = document ? document->root() : plist::Dictionary();
    std::string text = "profile " + std::to_string(root.integer(kNumberKey).value_or(0)) + ':';
    for (const Field &field : profileFields())
        text += integersOf(field, root);
    return text;
}
