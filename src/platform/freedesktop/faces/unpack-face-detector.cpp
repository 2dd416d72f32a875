// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT

// Writes dlib's detector of frontal faces to a file, ready to be read. For the build only.

#include <dlib/image_processing/frontal_face_detector.h>

#include <fstream>
#include <iostream>

int main(int argc, char** argv)
try {
    if (argc != 2)
        return 2;
    std::ofstream file(argv[1], std::ios::binary);
    dlib::serialize(dlib::get_frontal_face_detector(), file);
    return file.flush() ? 0 : 1;
} catch (const std::exception& reason) {
    std::cerr << reason.what() << '\n';
    return 1;
}
