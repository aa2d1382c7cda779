# find_package(tarn) defines the imported target tarn::tarn: the shared library and its header.
# libomp is the library's own dependency; its users link tarn alone.
include("${CMAKE_CURRENT_LIST_DIR}/tarnTargets.cmake")
