// Loads what it is linked to, says how much of its memory is resident, and ends.
#include <unistd.h>

#include <cstdio>

int main()
{
    long pages = 0;
    std::FILE* const statm = std::fopen("/proc/self/statm", "r");
    const bool known = statm && std::fscanf(statm, "%*d %ld", &pages) == 1;
    if (statm)
        std::fclose(statm);
    std::printf("%ld\n", pages * sysconf(_SC_PAGESIZE) / 1024);
    std::fflush(stdout);
    _exit(known ? 0 : 1);
}
