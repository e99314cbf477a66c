/* A stranger's program, in C99: works on an image, then prints which build the loader picked. */
#include <stdio.h>
#include <string.h>
#include <zmvip.h>
#include <zmvip_status.h>

int main(void) {
    int step;
    uint8_t row[5];
    const ImageSize size = {5, 3};
    uint8_t* image = zmviMalloc_8u_C1(size.width, size.height, &step);
    StatusCode status = zmviSet_8u_C1R(7, image, step, size);
    if (status == STATUS_OK) status = zmviCopy_8u_C1R(image + 2 * step, step, row, 5, (ImageSize){5, 1});
    if (status != STATUS_OK || memcmp(row, "\7\7\7\7\7", 5) != 0) {
        fprintf(stderr, "%s: %s\n", zmvStatusName(status), zmvStatusText(status));
        return 1;
    }
    zmviFree(image);
    printf("%.4s\n", zmviGetLibVersion()->cpuTag);
    return 0;
}
