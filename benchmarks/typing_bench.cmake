# What typing_bench.sh types into. The tests try it, too.
find_package(Qt6 6.4 REQUIRED COMPONENTS Widgets)
if(NOT TARGET typing_bench_kelvo)
    add_executable(typing_bench_kelvo ${CMAKE_CURRENT_LIST_DIR}/typing_bench_kelvo.cpp
                                      ${CMAKE_CURRENT_LIST_DIR}/key_watch.cpp)
    target_link_libraries(typing_bench_kelvo PRIVATE kelvo_desktop)
    add_executable(typing_bench_empty ${CMAKE_CURRENT_LIST_DIR}/typing_bench_empty.cpp
                                      ${CMAKE_CURRENT_LIST_DIR}/key_watch.cpp)
    target_link_libraries(typing_bench_empty PRIVATE kelvo_options Qt6::Widgets)
    set_target_properties(typing_bench_kelvo typing_bench_empty PROPERTIES AUTOMOC ON)
endif()
