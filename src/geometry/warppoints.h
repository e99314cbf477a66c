// The points that pixels of a warp's destination come from, a vector at a time.  Along a row they are slope X + rest:
// where slopes are steady the products are those of the row above, and are formed once for the rows of a tile.
#pragma once

#include "geometry/warp.h"

namespace zmv {

class WarpPoints {
    using Reals = Vec<double>;

  public:
    static constexpr int part = 64, group = lanes<int32_t>;  // pixels of a tile's row; of what is worked together

    // How a row's points are formed: surely inside, of products or of pixels and slopes; or any way.
    enum class Way { steady, exact, any };
    Way way() const { return !header_.exact ? Way::any : map_.steady ? Way::steady : Way::exact; }

    // Some pixels of a row: products, pixels, or where there are no lines points.
    struct Row {
        const double *x, *y, *over;
        Reals slopeX, slopeY, restX, restY, restOver;
        bool divided;
        template <Way way>
        ZMV_INLINE void points(Len i, Reals& px, Reals& py) const {
            px = load(x + i), py = load(y + i);
            if (way == Way::exact) px *= slopeX, py *= slopeY;
            px += restX, py += restY;
            if (way != Way::any || !divided) return;
            const Reals by = load(over + i) + restOver;
            px /= by, py /= by;
        }
    };

    WarpPoints(const WarpHeader& h, const WarpMap& map, Len first, const WarpMemory& memory)
        : header_(h), map_(map), first_(first), from_{memory.x, memory.y, memory.x + 2 * part} {}

    // The pixels x .. x + count - 1 of row y, which lie in one part; fewer than a group are made one by the last.
    ZMV_INLINE Row row(Len x, Len y, int count) {
        if (!map_.hasLines(header_)) {
            map_.points(header_, x, y, count, from_[0], from_[1]);
            for (int i = count; i < group; ++i)
                for (int k = 0; k < 2; ++k) from_[k][i] = from_[k][count - 1];
            return {from_[0], from_[1], nullptr, Reals{}, Reals{}, Reals{}, Reals{}, Reals{}, false};
        }
        const WarpLines lines = map_.lines(header_, y);
        const Len start = x - (x - first_) % part;
        multiply(start, map_.steady ? Slopes{lines.column.slope, lines.row.slope, lines.over.slope} : Slopes{1, 1, 1});
        const double* products[3];
        for (int k = 0; k < 3; ++k) {
            products[k] = from_[k] + (x - start);
            if (count >= group) continue;
            double* const few = from_[k] + 4 * part;
            for (int i = 0; i < group; ++i) few[i] = products[k][std::min(i, count - 1)];
            products[k] = few;
        }
        return {products[0],           products[1],
                products[2],           fill(lines.column.slope),
                fill(lines.row.slope), fill(lines.column.rest),
                fill(lines.row.rest),  fill(lines.over.rest),
                map_.divides};
    }

  private:
    struct Slopes {
        double of[3];
        bool operator==(const Slopes&) const = default;
    };
    void multiply(Len start, const Slopes& slopes) {
        if (start == start_ && slopes == slopes_) return;
        start_ = start, slopes_ = slopes;
        eachVectorOfPixels(start, part, [&](int i, Reals at) {
            for (int k = 0; k < (map_.divides ? 3 : 2); ++k) store(from_[k] + i, slopes.of[k] * at);
        });
    }

    const WarpHeader& header_;
    const WarpMap& map_;
    const Len first_;  // the tile's first pixel
    double* const from_[3];
    Len start_ = -1;
    Slopes slopes_{};
};

}  // namespace zmv
