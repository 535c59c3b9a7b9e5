// loadtime LIBRARY: prints how many microseconds the loader takes for LIBRARY, with Qt Widgets, on
// which it depends, loaded before.

#include <QWidget>

#include <chrono>
#include <cstdio>
#include <dlfcn.h>

int main(int argc, char **argv)
{
    if (argc != 2)
        return 1;
    // Keeps the linker from dropping the library that is to be loaded already.
    const volatile void *widgets = &QWidget::staticMetaObject;
    const auto begin = std::chrono::steady_clock::now();
    const void *library = dlopen(argv[1], RTLD_NOW);
    const auto end = std::chrono::steady_clock::now();
    if (!library || !widgets) {
        std::fprintf(stderr, "loadtime: %s\n", dlerror());
        return 1;
    }
    std::printf("%.1f\n", std::chrono::duration<double, std::micro>(end - begin).count());
    return 0;
}
