# OpenCV's package for CMake comes with all of OpenCV's parts; the one that runs models and its core suffice.
find_path(OpenCVDnn_INCLUDE_DIR opencv2/dnn.hpp PATH_SUFFIXES opencv4)
find_library(OpenCVDnn_LIBRARY opencv_dnn)
find_library(OpenCVDnn_CORE_LIBRARY opencv_core)
if(OpenCVDnn_INCLUDE_DIR AND EXISTS "${OpenCVDnn_INCLUDE_DIR}/opencv2/core/version.hpp")
  file(STRINGS "${OpenCVDnn_INCLUDE_DIR}/opencv2/core/version.hpp" numbers
    REGEX "^#define CV_VERSION_(MAJOR|MINOR|REVISION) +[0-9]+")
  string(REGEX REPLACE "[^0-9;]" "" numbers "${numbers}")
  string(REPLACE ";" "." OpenCVDnn_VERSION "${numbers}")
endif()
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(OpenCVDnn
  REQUIRED_VARS OpenCVDnn_LIBRARY OpenCVDnn_CORE_LIBRARY OpenCVDnn_INCLUDE_DIR
  VERSION_VAR OpenCVDnn_VERSION
  REASON_FAILURE_MESSAGE "Debian has it in libopencv-dnn-dev, and -DLUMIDEX_ONNX=OFF builds without")
if(OpenCVDnn_FOUND AND NOT TARGET OpenCVDnn::OpenCVDnn)
  add_library(OpenCVDnn::OpenCVDnn INTERFACE IMPORTED)
  target_include_directories(OpenCVDnn::OpenCVDnn INTERFACE "${OpenCVDnn_INCLUDE_DIR}")
  target_link_libraries(OpenCVDnn::OpenCVDnn INTERFACE "${OpenCVDnn_LIBRARY}" "${OpenCVDnn_CORE_LIBRARY}")
endif()
mark_as_advanced(OpenCVDnn_INCLUDE_DIR OpenCVDnn_LIBRARY OpenCVDnn_CORE_LIBRARY)
