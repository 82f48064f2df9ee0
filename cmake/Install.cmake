# What an embedding suite gets: find_package(VantrixMap), targets VantrixMap::Page,
# VantrixMap::Data and, with the reference host, VantrixMap::Host.
include(CMakePackageConfigHelpers)

set(VANTRIX_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/VantrixMap)

set_target_properties(vantrixmap PROPERTIES EXPORT_NAME Page)
set_target_properties(vantrix_data PROPERTIES EXPORT_NAME Data)
set(VANTRIX_INSTALLED vantrixmap vantrix_data)
if(VANTRIX_HOST AND TARGET vantrix_host)
    set_target_properties(vantrix_host PROPERTIES EXPORT_NAME Host)
    list(APPEND VANTRIX_INSTALLED vantrix_host)
endif()
install(TARGETS ${VANTRIX_INSTALLED} EXPORT VantrixMapTargets
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(EXPORT VantrixMapTargets NAMESPACE VantrixMap:: DESTINATION ${VANTRIX_CMAKE_DIR})

set(VANTRIX_PUBLIC_HEADERS
    core/records.h
    core/VantrixMapWid.h
    vocabulary/AppTables.h
    vocabulary/KeyCategories.h
    vocabulary/KeyCodes.h
    vocabulary/KeyImages.h
    vocabulary/KeyLegends.h
    vocabulary/Presets.h
    vocabulary/Common.h
    vocabulary/KeyNames.h
    translations/PageTranslation.h
)
foreach(header ${VANTRIX_PUBLIC_HEADERS})
    get_filename_component(folder ${header} DIRECTORY)
    install(FILES ${PROJECT_SOURCE_DIR}/src/${header}
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/VantrixMap/${folder})
endforeach()
install(DIRECTORY ${PROJECT_SOURCE_DIR}/src/interfaces
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/VantrixMap FILES_MATCHING PATTERN "*.h")
if(VANTRIX_HOST)
    set(VANTRIX_HOST_HEADERS
        Device.h
        DeviceImage.h
        HostEnvironment.h
        HostKeyCapture.h
        HostLocations.h
        HostParse.h
        HostServices.h
        KeyContent.h
        KeyText.h
        ProfileExchange.h
        ProfileStore.h
        SimulatedDevice.h
        StoreHistory.h
        StoreRecord.h
        StoreState.h
    )
    list(TRANSFORM VANTRIX_HOST_HEADERS PREPEND ${PROJECT_SOURCE_DIR}/host/)
    install(FILES ${VANTRIX_HOST_HEADERS} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/VantrixMap/host)
endif()
install(DIRECTORY ${PROJECT_SOURCE_DIR}/share/hotkeys
    DESTINATION ${CMAKE_INSTALL_DATADIR}/vantrixmap)

configure_package_config_file(cmake/VantrixMapConfig.cmake.in
    ${PROJECT_BINARY_DIR}/VantrixMapConfig.cmake INSTALL_DESTINATION ${VANTRIX_CMAKE_DIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/VantrixMapConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/VantrixMapConfig.cmake
    ${PROJECT_BINARY_DIR}/VantrixMapConfigVersion.cmake
    DESTINATION ${VANTRIX_CMAKE_DIR})
