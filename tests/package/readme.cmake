# Fails unless README prints the example's files as they are.
foreach(file CMakeLists.txt main.cpp)
    file(READ ${CMAKE_CURRENT_LIST_DIR}/example/${file} printed)
    file(READ ${CMAKE_CURRENT_LIST_DIR}/../../README.md readme)
    string(FIND "${readme}" "\n${printed}```\n" place)
    if(place EQUAL -1)
        message(SEND_ERROR "README.md does not print tests/package/example/${file} as it is")
    endif()
endforeach()
