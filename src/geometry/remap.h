// A call of remap, checked: its driver makes it, and the module of each element type does it.
#pragma once

#include "kernels/interpolation.h"
#include "kernels/readable.h"

namespace zmv {

// What coordinates are given in, and all is computed in.
template <class T>
using MapOf = Formed<T>;

template <class T>
struct Remapping {
    Readable<T> source;
    Image<const MapOf<T>> xMap, yMap;
    Image<T> dst;
    Roi roi;
    int kind;  // of kernel
    bool smooth;
    template <Layout layout>
    void run() const;
};

}  // namespace zmv
