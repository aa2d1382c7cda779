# LLVM's OpenMP runtime (libomp), whatever the compiler. The library allocates per-thread
# scratch with the runtime's kmpc_malloc and kmpc_free, which only libomp exports, and a process
# must not run two OpenMP runtimes. GCC's -fopenmp code calls the GOMP_* entry points, which
# libomp provides too; so every target compiles with its compiler's OpenMP flag and links libomp
# by path, never through the compiler driver, which would add libgomp for GCC.
#
# Defines the interface target tarn_openmp. Searched, in order: the lib directory of the LLVM
# tree clang++ belongs to, Debian's /usr/lib/llvm-<N>/lib (newest first), the default library
# paths. To use another runtime: -DTARN_OMP_LIBRARY=/path/to/libomp.so and
# -DTARN_OMP_INCLUDE_DIR=<directory of its omp.h>.

if(NOT CMAKE_CXX_COMPILER_ID MATCHES "^(GNU|Clang)$")
  message(FATAL_ERROR "tarn builds with GCC or Clang, not ${CMAKE_CXX_COMPILER_ID}")
endif()

set(_tarn_omp_hints)
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
  file(REAL_PATH "${CMAKE_CXX_COMPILER}" _tarn_cxx)
  get_filename_component(_tarn_cxx_bin "${_tarn_cxx}" DIRECTORY)
  list(APPEND _tarn_omp_hints "${_tarn_cxx_bin}/../lib")
endif()
file(GLOB _tarn_llvm_libs LIST_DIRECTORIES true /usr/lib/llvm-*/lib)
list(SORT _tarn_llvm_libs COMPARE NATURAL ORDER DESCENDING)
list(APPEND _tarn_omp_hints ${_tarn_llvm_libs})

set(_tarn_omp_install "install LLVM's OpenMP runtime (Debian and Ubuntu: apt-get install libomp-dev), \
or name it with -DTARN_OMP_LIBRARY=/path/to/libomp.so -DTARN_OMP_INCLUDE_DIR=<directory of its omp.h>")

find_library(TARN_OMP_LIBRARY NAMES omp HINTS ${_tarn_omp_hints} DOC "LLVM's OpenMP runtime (libomp)")
if(NOT TARN_OMP_LIBRARY)
  message(FATAL_ERROR "tarn: libomp not found: ${_tarn_omp_install}")
endif()

# The runtime's own omp.h: beside clang's other resource headers in an LLVM tree, in
# <prefix>/include for a runtime installed on its own.
get_filename_component(_tarn_omp_libdir "${TARN_OMP_LIBRARY}" DIRECTORY)
file(GLOB _tarn_omp_incs LIST_DIRECTORIES true "${_tarn_omp_libdir}/clang/*/include")
list(SORT _tarn_omp_incs COMPARE NATURAL ORDER DESCENDING)
find_path(TARN_OMP_INCLUDE_DIR omp.h HINTS ${_tarn_omp_incs} "${_tarn_omp_libdir}/../include"
  DOC "Directory of libomp's omp.h")
if(NOT TARN_OMP_INCLUDE_DIR)
  message(FATAL_ERROR "tarn: omp.h of ${TARN_OMP_LIBRARY} not found: ${_tarn_omp_install}")
endif()

include(CheckLibraryExists)
unset(TARN_OMP_HAS_KMPC_MALLOC CACHE)  # checked again whenever TARN_OMP_LIBRARY may have changed
check_library_exists("${TARN_OMP_LIBRARY}" kmpc_malloc "" TARN_OMP_HAS_KMPC_MALLOC)
if(NOT TARN_OMP_HAS_KMPC_MALLOC)
  message(FATAL_ERROR "tarn: ${TARN_OMP_LIBRARY} does not export kmpc_malloc: ${_tarn_omp_install}")
endif()

# Only omp.h is copied onto the include path: in an LLVM tree its directory also holds clang's
# own stddef.h, xmmintrin.h and the like, which GCC must not see.
configure_file("${TARN_OMP_INCLUDE_DIR}/omp.h" "${PROJECT_BINARY_DIR}/openmp/omp.h" COPYONLY)

add_library(tarn_openmp INTERFACE)
target_include_directories(tarn_openmp SYSTEM INTERFACE "${PROJECT_BINARY_DIR}/openmp")
target_compile_options(tarn_openmp INTERFACE
  $<$<COMPILE_LANG_AND_ID:CXX,Clang>:-fopenmp=libomp> $<$<COMPILE_LANG_AND_ID:C,Clang>:-fopenmp=libomp>
  $<$<COMPILE_LANG_AND_ID:CXX,GNU>:-fopenmp> $<$<COMPILE_LANG_AND_ID:C,GNU>:-fopenmp>)
target_link_libraries(tarn_openmp INTERFACE "${TARN_OMP_LIBRARY}")
message(STATUS "tarn: OpenMP runtime ${TARN_OMP_LIBRARY}, header ${TARN_OMP_INCLUDE_DIR}/omp.h")
