# Put into the example by CMAKE_PROJECT_INCLUDE, so that the example itself is built as it stands.
cmake_language(EVAL CODE
    "cmake_language(DEFER CALL target_sources app PRIVATE [[${CMAKE_CURRENT_LIST_DIR}/watch.cpp]])")
