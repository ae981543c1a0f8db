#include <cstdio>

#include <bexa/bexa.h>

int main() {
    std::puts(BexVersion());
}
