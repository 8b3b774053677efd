#include "Conversation.h"
#include "ImageWorkerWire.h"
#include "LockDown.h"
#include "TileDecoder.h"

#include <cstdlib>

/// The program that reads one photo for the application, which starts it with its own process number and a
/// socket.
int main(int argumentCount, char **arguments)
{
    using namespace imageworker;
    if (argumentCount != 2 || !tieToParent(std::atoi(arguments[1]))) {
        return EXIT_FAILURE;
    }
    const Rights rights = loadDecoders() && lockDown() ? Rights::GivenUp : Rights::Kept;
    converse(imageworkerwire::WorkerDescriptor, rights);
    return EXIT_SUCCESS;
}
