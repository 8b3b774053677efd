// MakeSeeds FOLDER: a few small photos of different kinds for the fuzzers to start from.

#include "MadePhoto.h"

#include <fstream>
#include <iterator>
#include <string>

int main(int argumentCount, char **arguments)
{
    using namespace imageworker;
    if (argumentCount != 2) {
        return 1;
    }
    const PhotoRecipe recipes[] = {
        {.size = {64, 48}},
        {.size = {65, 47}, .chroma = PhotoRecipe::Chroma::Full, .orientation = 6},
        {.size = {64, 64}, .chroma = PhotoRecipe::Chroma::None},
        {.size = {64, 64}, .hasAlpha = true, .exif = {'I', 'I', 42, 0, 8, 0, 0, 0, 0, 0}},
    };
    for (std::size_t index = 0; index < std::size(recipes); ++index) {
        const Bytes photo = makePhoto(recipes[index]);
        std::ofstream file(std::string(arguments[1]) + "/made-" + std::to_string(index) + ".heic",
                           std::ios::binary);
        file.write(reinterpret_cast<const char *>(photo.data()), static_cast<std::streamsize>(photo.size()));
    }
    return 0;
}
