#include "generator/pictures.h"

#include "generator/facts.h"
#include "generator/html.h"
#include "platform/text.h"

#include <filesystem>

namespace arbolith::help {

namespace {

std::string JoinedFrom(const Words& words, std::size_t first) {
    std::string text;
    for (std::size_t i = first; i < words.size(); ++i) text += (i > first ? " " : "") + words[i];
    return text;
}

}  // namespace

std::string HeightPicture(const std::string& code) {
    return "heights-" + ToLower(code);
}

std::string PictureHtml(const std::string& name, const std::string& text, const Page& page) {
    const auto path = page.Root() + "pictures/" + name;
    return "<p class=\"picture\"><img src=\"" + path + ".png\" srcset=\"" + path +
           "@2x.png 2x\" alt=\"" + Escaped(text) + "\"></p>\n";
}

void AddPictureFacts(Facts& facts, const std::string& pictureFolder) {
    facts["picture"] = [pictureFolder](const Words& words, const Page& page) {
        const auto& name = WordAt(words, 0);
        WordAt(words, 1);
        for (const char* ending : {".png", "@2x.png"})
            if (const auto file = name + ending;
                !std::filesystem::exists(std::filesystem::path(pictureFolder) / file))
                throw BadPage("no picture " + file);
        return PictureHtml(name, JoinedFrom(words, 1), page);
    };
}

}  // namespace arbolith::help
