/* The smallest complete program, in C99: which build the loader picked, one image, one call, its status. */
#include <stdio.h>
#include <zmvip.h>
#include <zmvip_status.h>

int main(void) {
    const LibraryVersion* version = zmviGetLibVersion();
    printf("build\t%s\t%s\n", version->libraryName, version->versionText);

    const ImageSize size = {640, 480};
    int step = 0; /* the distance from row to row in bytes, at least 640 */
    uint8_t* image = zmviMalloc_8u_C1(size.width, size.height, &step);
    if (!image) {
        fprintf(stderr, "no memory for the image\n");
        return 1;
    }
    StatusCode status = zmviSet_8u_C1R(200, image, step, size);
    if (status != STATUS_OK) fprintf(stderr, "zmviSet: %s, %s\n", zmvStatusName(status), zmvStatusText(status));

    int wrong = status != STATUS_OK;
    for (int y = 0; y < size.height; ++y)
        for (int x = 0; x < size.width; ++x) wrong |= image[y * step + x] != 200;

    /* A mistake is answered with a status, and nothing is written. */
    const ImageSize empty = {640, 0};
    wrong |= zmviSet_8u_C1R(0, image, step, empty) != STATUS_BAD_SIZE || image[0] != 200;

    zmviFree(image);
    return wrong;
}
