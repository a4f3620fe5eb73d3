// Names for temporary files.
#pragma once

#include <mutex>
#include <random>
#include <string>

// Makes up names from one stream of random numbers for the whole process, seeded once. Any thread may call any
// function.
class TmpNameGen {
public:
    // The one instance, made on first use. Throws what std::random_device throws if "/dev/urandom" can't be read.
    static TmpNameGen& getInstance();

    TmpNameGen(const TmpNameGen&) = delete;
    TmpNameGen& operator=(const TmpNameGen&) = delete;

    // A name of 8 characters from digits, letters of both cases, "-" and "_". Names that differ by case alone are one
    // name on a volume that ignores case.
    std::string getTmpName();

    // The folder, "/" and a name. A "/" at the end of the folder is not looked for, so that it comes out doubled.
    std::string getTmpPath(const std::string& folder);

    // Starts the stream anew from the system's random source. Throws as getInstance().
    void reseed();

private:
    TmpNameGen();

    std::mutex mutex_;            // guards engine_
    std::minstd_rand engine_{1};  // multiplier 48271, modulus 2^31 - 1
};
