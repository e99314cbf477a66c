// A stranger's program, in C++17: works on an image, then prints which build the loader picked.
#include <iostream>
#include <string_view>
#include <zmvip.hpp>

int main() try {
    zmvip::image<uint8_t, 1> image(5, 3), sum(5, 3);
    zmvip::set(image, 7).orThrow();
    zmvip::add(image, image, sum, 0).orThrow();
    const auto [low, high] = zmvip::min_max(sum).orThrow();
    if (low != 14 || high != 14) return 1;
    std::cout << std::string_view(zmviGetLibVersion()->cpuTag, 2) << '\n';
} catch (const zmvip::error& e) {
    std::cerr << e.what() << '\n';
    return 1;
}
