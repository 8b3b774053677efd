#include "TileDecoder.h"

#include <gtest/gtest.h>

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    return imageworker::loadDecoders() ? RUN_ALL_TESTS() : EXIT_FAILURE;
}
