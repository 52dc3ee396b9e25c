# The serialised form of records, apart from the core, which needs nothing but the language.
add_library(lumo_json STATIC macro/MacroEventJson.cpp)
target_link_libraries(lumo_json PUBLIC lumo_core nlohmann_json::nlohmann_json PRIVATE lumo_options)
