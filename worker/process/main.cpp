#include "Conversation.h"
#include "ImageWorkerWire.h"
#include "LockDown.h"
#include "Nursery.h"
#include "TileDecoder.h"

#include <cstdlib>

/// The program that reads photos for the application, each in a process of its own. The application starts it
/// with its own process number and a socket.
int main(int argumentCount, char **arguments)
{
    using namespace imageworker;
    if (argumentCount != 2 || !tieToParent(std::atoi(arguments[1])) || !loadDecoders()) {
        return EXIT_FAILURE;
    }
    raiseWorkers(imageworkerwire::NurseryDescriptor,
                 [](int socket) { converse(socket, lockDown() ? Rights::GivenUp : Rights::Kept); });
    return EXIT_SUCCESS;
}
