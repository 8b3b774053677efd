#include "ForkServer.h"
#include "ImageWorkerWire.h"
#include "RequestHandler.h"
#include "TileDecoder.h"

#include <cstdlib>

/// The program that reads photos for the application, each in a process of its own.
int main()
{
    using namespace imageworker;
    if (!loadDecoders()) {
        return EXIT_FAILURE;
    }
    runForkServer(imageworkerwire::ForkServerDescriptor, handleRequests);
    return EXIT_SUCCESS;
}
