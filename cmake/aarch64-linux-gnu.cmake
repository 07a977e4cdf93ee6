# Cross build for the device's architecture with Debian's g++-aarch64-linux-gnu, against Debian's
# arm64 multiarch libraries (scripts/arm64-setup installs them). Every test binary, and the
# dumpbrel the end-to-end runner starts, runs under qemu's user-mode emulator:
#
#     cmake -S . -B build-arm64 -DCMAKE_TOOLCHAIN_FILE=cmake/aarch64-linux-gnu.cmake
#     cmake --build build-arm64 -j2 && ctest --test-dir build-arm64
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)

set(CMAKE_C_COMPILER aarch64-linux-gnu-gcc)
set(CMAKE_CXX_COMPILER aarch64-linux-gnu-g++)
set(CMAKE_LIBRARY_ARCHITECTURE aarch64-linux-gnu)

# qemu runs the programs in a small sysroot that scripts/arm64-setup builds: the loader of
# libc6:arm64 (the libc the Android libraries come with) and p7zip's arm64 7z.so, which
# libbacktrace (needed by libutils) needs. Every other path falls through to the host's
# multiarch directories (/usr/lib/aarch64-linux-gnu), where the libraries, gtest and libc live.
# qemu starts through cmake/qemu-aarch64-userns, in a user namespace of its own when not root.
set(DUMPBREL_ARM64_SYSROOT /opt/dumpbrel-arm64-sysroot)
set(CMAKE_CROSSCOMPILING_EMULATOR
  ${CMAKE_CURRENT_LIST_DIR}/qemu-aarch64-userns -L ${DUMPBREL_ARM64_SYSROOT})

# The linker only has to see 7z.so to resolve libbacktrace's needs.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-Wl,-rpath-link,${DUMPBREL_ARM64_SYSROOT}/usr/lib/p7zip")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-Wl,-rpath-link,${DUMPBREL_ARM64_SYSROOT}/usr/lib/p7zip")
