# A static Qt offers all of its plugins to everything that is linked to it. Nobody takes one unasked: who needs one names
# it in the property QT_PLUGINS.
define_property(TARGET PROPERTY QT_NO_PLUGINS INITIALIZE_FROM_VARIABLE ORVANTA_QT_NO_PLUGINS)
find_package(Qt5 REQUIRED COMPONENTS Network)
set(ORVANTA_QT_NO_PLUGINS ${Qt5Gui_PLUGINS} ${Qt5Widgets_PLUGINS} ${Qt5Network_PLUGINS})
