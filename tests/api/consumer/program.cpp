// A stranger's program, in C++17: works on an image, then prints which build the loader picked.
#include <zmvip.h>
#include <zmvip_status.h>

#include <iostream>
#include <vector>

int main() {
    std::vector<uint8_t> image(15, 3), sum(15);
    const StatusCode status = zmviAdd_8u_C1RSfs(image.data(), 5, image.data(), 5, sum.data(), 5, {5, 3}, 0);
    if (status != STATUS_OK || sum != std::vector<uint8_t>(15, 6)) {
        std::cerr << zmvStatusName(status) << ": " << zmvStatusText(status) << '\n';
        return 1;
    }
    std::cout << std::string_view(zmviGetLibVersion()->cpuTag, 2) << '\n';
}
