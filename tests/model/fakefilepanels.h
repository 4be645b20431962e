#pragma once

#include "platform/filepanels.h"

#include <vector>

/// Panels that are answered beforehand, and keep what they were asked.
class FakeFilePanels : public FilePanels
{
public:
    struct Question
    {
        enum class Kind { Open, Save } kind;
        std::string title;
        std::string proposedName;
        std::string fileType;

        bool operator==(const Question &) const = default;
    };

    std::optional<std::string> openPanel(const std::string &title,
                                         const std::string &fileType) override
    {
        questions.push_back({Question::Kind::Open, title, {}, fileType});
        return answer;
    }
    std::optional<std::string> savePanel(const std::string &title, const std::string &proposedName,
                                         const std::string &fileType) override
    {
        questions.push_back({Question::Kind::Save, title, proposedName, fileType});
        return answer;
    }

    std::optional<std::string> answer; ///< the path chosen; nothing: cancelled
    std::vector<Question> questions;
};
