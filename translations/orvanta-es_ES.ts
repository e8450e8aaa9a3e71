<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_GB">
<context>
    <name>DialogOptions</name>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Localisation</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>Program Startup</source>
        <translation>Inicio del programa</translation>
    </message>
    <message>
        <source>Restore window layout</source>
        <translation>Restaurar la disposición de la ventana</translation>
    </message>
    <message>
        <source>Restore window position</source>
        <translation>Restaurar la posición de la ventana</translation>
    </message>
    <message>
        <source>Disable splash screen</source>
        <translation>Desactivar la pantalla de inicio</translation>
    </message>
    <message>
        <source>Check for new versions</source>
        <translation>Buscar nuevas versiones</translation>
    </message>
    <message>
        <source>Automatically check for new versions </source>
        <translation>Buscar nuevas versiones automáticamente </translation>
    </message>
    <message>
        <source>Check now</source>
        <translation>Buscar ahora</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Código</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>País</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Restart the application so the setting can take effect.</source>
        <translation>Reinicie la aplicación para que el cambio surta efecto.</translation>
    </message>
</context>
<context>
    <name>DialogStart</name>
    <message>
        <source>Code</source>
        <translation>Código</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>País</translation>
    </message>
    <message>
        <source>Automatically check for updates</source>
        <translation>Buscar actualizaciones automáticamente</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Siguiente</translation>
    </message>
    <message>
        <source>We would like to thank you for your confidence and hope you&apos;ll enjoy our software.</source>
        <translation>Le agradecemos su confianza y esperamos que disfrute de nuestro software.</translation>
    </message>
    <message>
        <source>Discover more products from us:</source>
        <translation>Descubra otros productos nuestros:</translation>
    </message>
    <message>
        <source>We are looking for native speaking translators.</source>
        <translation>Buscamos traductores nativos.</translation>
    </message>
    <message>
        <source>Please contact us at: </source>
        <translation>Póngase en contacto con nosotros en: </translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Web site</source>
        <translation>Sitio web</translation>
    </message>
    <message>
        <source>Calculate Checksum</source>
        <translation>Calcular suma de comprobación</translation>
    </message>
    <message>
        <source>Algorithm:</source>
        <translation>Algoritmo:</translation>
    </message>
    <message>
        <source>Available hash algorithms</source>
        <translation>Algoritmos hash disponibles</translation>
    </message>
    <message>
        <source>Path:</source>
        <translation>Ruta:</translation>
    </message>
    <message>
        <source>Select target file</source>
        <translation>Seleccionar el archivo</translation>
    </message>
    <message>
        <source>Checksum:</source>
        <translation>Suma:</translation>
    </message>
    <message>
        <source>Generated hash value</source>
        <translation>Valor hash calculado</translation>
    </message>
    <message>
        <source>Precalculated Checksum</source>
        <translation>Suma de comprobación publicada</translation>
    </message>
    <message>
        <source>Paste verification hash value</source>
        <translation>Pegue el valor hash que desea comprobar</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Two checksums are needed for verification..</source>
        <translation>Se necesitan dos sumas de comprobación para verificar..</translation>
    </message>
    <message>
        <source>VALID - Checksums do match</source>
        <translation>VÁLIDO - Las sumas de comprobación coinciden</translation>
    </message>
    <message>
        <source>INVALID - Checksums do not match</source>
        <translation>NO VÁLIDO - Las sumas de comprobación no coinciden</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Todos los archivos</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacidad</translation>
    </message>
    <message>
        <source>Stay On Top</source>
        <translation>Siempre visible</translation>
    </message>
</context>
<context>
    <name>VersionCheck</name>
    <message>
        <source>Okay</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>No updates are available.</source>
        <translation>No hay actualizaciones disponibles.</translation>
    </message>
    <message>
        <source>New version available:</source>
        <translation>Nueva versión disponible:</translation>
    </message>
    <message>
        <source>Do you want to download the latest version from our website?</source>
        <translation>¿Desea descargar la última versión desde nuestro sitio web?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Version check failed</source>
        <translation>Error al buscar nuevas versiones</translation>
    </message>
    <message>
        <source>Could not connect to server.</source>
        <translation>No se pudo conectar con el servidor.</translation>
    </message>
    <message>
        <source>Please check your internet/firewall settings or look for yourself at: %1 for a new version.</source>
        <translation>Compruebe la configuración de Internet y del cortafuegos o consulte usted mismo en %1 si hay una nueva versión.</translation>
    </message>
</context>
</TS>
