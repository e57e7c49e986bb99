<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
    <context>
        <name>QShortcut</name>
        <message>
            <source>Del</source>
            <translation>Suprimir</translation>
        </message>
        <message>
            <source>End</source>
            <translation>Fin</translation>
        </message>
        <message>
            <source>Esc</source>
            <translation>Escape</translation>
        </message>
        <message>
            <source>Ins</source>
            <translation>Insertar</translation>
        </message>
        <message>
            <source>Tab</source>
            <translation>Tabulador</translation>
        </message>
        <message>
            <source>Ctrl</source>
            <translation>Control</translation>
        </message>
        <message>
            <source>Home</source>
            <translation>Inicio</translation>
        </message>
        <message>
            <source>Left</source>
            <translation>Izquierda</translation>
        </message>
        <message>
            <source>Right</source>
            <translation>Derecha</translation>
        </message>
        <message>
            <source>Shift</source>
            <translation>Mayúsculas</translation>
        </message>
        <message>
            <source>Space</source>
            <translation>Espacio</translation>
        </message>
        <message>
            <source>Backspace</source>
            <translation>Borrar</translation>
        </message>
    </context>
    <context>
        <name>QPageSize</name>
        <message>
            <source>Note</source>
            <translation>Nota</translation>
        </message>
        <message>
            <source>Letter / ANSI A</source>
            <translation>Carta / ANSI A</translation>
        </message>
        <message>
            <source>Envelope Monarch</source>
            <translation>Sobre Monarca</translation>
        </message>
        <message>
            <source>Architect A</source>
            <translation>Arquitecto A</translation>
        </message>
        <message>
            <source>Architect B</source>
            <translation>Arquitecto B</translation>
        </message>
        <message>
            <source>Architect C</source>
            <translation>Arquitecto C</translation>
        </message>
        <message>
            <source>Architect D</source>
            <translation>Arquitecto C</translation>
        </message>
        <message>
            <source>Architect E</source>
            <translation>Arquitecto E</translation>
        </message>
        <message>
            <source>Letter Extra</source>
            <translation>Carta extra</translation>
        </message>
        <message>
            <source>Letter Small</source>
            <translation>Carta pequeña</translation>
        </message>
        <message>
            <source>Envelope You 4</source>
            <translation>Sobre You 4</translation>
        </message>
        <message>
            <source>Envelope US 10</source>
            <translation>Sobre EEUU 10</translation>
        </message>
        <message>
            <source>Envelope US 11</source>
            <translation>Sobre EEUU 11</translation>
        </message>
        <message>
            <source>Envelope US 12</source>
            <translation>Sobre EEUU 12</translation>
        </message>
        <message>
            <source>Envelope US 14</source>
            <translation>Sobre EEUU 14</translation>
        </message>
        <message>
            <source>Envelope PRC 1</source>
            <translation>Sobre PRC 1</translation>
        </message>
        <message>
            <source>Envelope PRC 2</source>
            <translation>Sobre PRC 2</translation>
        </message>
        <message>
            <source>Envelope PRC 3</source>
            <translation>Sobre PRC 3</translation>
        </message>
        <message>
            <source>Envelope PRC 4</source>
            <translation>Sobre PRC 4</translation>
        </message>
        <message>
            <source>Envelope PRC 5</source>
            <translation>Sobre PRC 5</translation>
        </message>
        <message>
            <source>Envelope PRC 6</source>
            <translation>Sobre PRC 6</translation>
        </message>
        <message>
            <source>Envelope PRC 7</source>
            <translation>Sobre PRC 7</translation>
        </message>
        <message>
            <source>Envelope PRC 8</source>
            <translation>Sobre PRC 8</translation>
        </message>
        <message>
            <source>Envelope PRC 9</source>
            <translation>Sobre PRC 9</translation>
        </message>
        <message>
            <source>Envelope C65</source>
            <translation>Sobre C65</translation>
        </message>
        <message>
            <source>Envelope DL</source>
            <translation>Sobre DL</translation>
        </message>
        <message>
            <source>Envelope B4</source>
            <translation>Sobre B4</translation>
        </message>
        <message>
            <source>Envelope B5</source>
            <translation>Sobre B5</translation>
        </message>
        <message>
            <source>Envelope B6</source>
            <translation>Sobre B6</translation>
        </message>
        <message>
            <source>Envelope C0</source>
            <translation>Sobre C0</translation>
        </message>
        <message>
            <source>Envelope C1</source>
            <translation>Sobre C1</translation>
        </message>
        <message>
            <source>Envelope C2</source>
            <translation>Sobre C2</translation>
        </message>
        <message>
            <source>Envelope C3</source>
            <translation>Sobre C3</translation>
        </message>
        <message>
            <source>Envelope C4</source>
            <translation>Sobre C4</translation>
        </message>
        <message>
            <source>Envelope C5</source>
            <translation>Sobre C5</translation>
        </message>
        <message>
            <source>Envelope C6</source>
            <translation>Sobre C6</translation>
        </message>
        <message>
            <source>Envelope C7</source>
            <translation>Sobre C7</translation>
        </message>
        <message>
            <source>Executive (7.5 x 10 in)</source>
            <translation>Ejecutivo (7.5 x 10 in)</translation>
        </message>
        <message>
            <source>Custom</source>
            <translation>Personalizado</translation>
        </message>
        <message>
            <source>PRC 32K Big</source>
            <translation>PRC 32K grande</translation>
        </message>
        <message>
            <source>A4 Small</source>
            <translation>A4 Pequeño</translation>
        </message>
        <message>
            <source>Executive (7.25 x 10.5 in)</source>
            <translation>Ejecutivo (7.25 x 10.5 in)</translation>
        </message>
        <message>
            <source>Postcard</source>
            <translation>Tarjeta postal</translation>
        </message>
        <message>
            <source>Tabloid / ANSI B</source>
            <translation>Tabloide / ANSI B</translation>
        </message>
        <message>
            <source>Envelope Invite</source>
            <translation>Sobre invitación</translation>
        </message>
        <message>
            <source>Envelope Chou 3</source>
            <translation>Sobre Cho 3</translation>
        </message>
        <message>
            <source>Envelope Chou 4</source>
            <translation>Sobre Cho 4</translation>
        </message>
        <message>
            <source>Statement</source>
            <translation>Declaración</translation>
        </message>
        <message>
            <source>Fan-fold German (8.5 x 12 in)</source>
            <translation>Pliegue de ventilador Alemán (8.5 x 12 in)</translation>
        </message>
        <message>
            <source>Envelope PRC 10</source>
            <translation>Sobre PRC 10</translation>
        </message>
        <message>
            <source>Envelope Kaku 2</source>
            <translation>Sobre Kaku 2</translation>
        </message>
        <message>
            <source>Envelope Kaku 3</source>
            <translation>Sobre Kaku 3</translation>
        </message>
        <message>
            <source>Envelope US 9</source>
            <translation>Sobre EEUU 9</translation>
        </message>
        <message>
            <source>Fan-fold US (14.875 x 11 in)</source>
            <translation>Pliegue de ventilador EEUU (14.875 x 11 in)</translation>
        </message>
        <message>
            <source>Fan-fold German Legal (8.5 x 13 in)</source>
            <translation>Pliegue de ventilador Alemán Legal (8.5 x 13 in)</translation>
        </message>
        <message>
            <source>Custom (%1in x %2in)</source>
            <translation>Personalizado (%1mm x %2mm)</translation>
        </message>
        <message>
            <source>Custom (%1mm x %2mm)</source>
            <translation>Personalizado (%1mm x %2mm)</translation>
        </message>
        <message>
            <source>Custom (%1CC x %2CC)</source>
            <translation>Personalizado (%1CC x %2CC)</translation>
        </message>
        <message>
            <source>Custom (%1DD x %2DD)</source>
            <translation>Personalizado (%1DD x %2DD)</translation>
        </message>
        <message>
            <source>Custom (%1pc x %2pc)</source>
            <translation>Personalizado (%1pc x %2pc)</translation>
        </message>
        <message>
            <source>Custom (%1pt x %2pt)</source>
            <translation>Personalizado (%1pt x %2pt)</translation>
        </message>
        <message>
            <source>Letter Plus</source>
            <translation>Carta plus</translation>
        </message>
        <message>
            <source>Tabloid Extra</source>
            <translation>Tabloide extra</translation>
        </message>
        <message>
            <source>Envelope Italian</source>
            <translation>Sobre Italiano</translation>
        </message>
        <message>
            <source>Double Postcard</source>
            <translation>Tarjeta postal doble</translation>
        </message>
        <message>
            <source>Legal Extra</source>
            <translation>Legal extra</translation>
        </message>
        <message>
            <source>Ledger / ANSI B</source>
            <translation>Libro mayor / ANSI B</translation>
        </message>
        <message>
            <source>Envelope Personal</source>
            <translation>Sobre Personal</translation>
        </message>
    </context>
    <context>
        <name>QPageSetupWidget</name>
        <message>
            <source>Form</source>
            <translation>Formulario</translation>
        </message>
        <message>
            <source>bottom margin</source>
            <translation>Margen inferior</translation>
        </message>
        <message>
            <source>Paper</source>
            <translation>Papel</translation>
        </message>
        <message>
            <source>Paper source:</source>
            <translation>Fuente del papel:</translation>
        </message>
        <message>
            <source>right margin</source>
            <translation>Margen derecho</translation>
        </message>
        <message>
            <source>Pica (P̸)</source>
            <translation>Picas (P̸)</translation>
        </message>
        <message>
            <source>Margins</source>
            <translation>Márgenes</translation>
        </message>
        <message>
            <source>Custom</source>
            <translation>Personalizado</translation>
        </message>
        <message>
            <source>Landscape</source>
            <translation>Apaisado</translation>
        </message>
        <message>
            <source>Page Layout</source>
            <translation>Diseño de página</translation>
        </message>
        <message>
            <source>Width:</source>
            <translation>Ancho:</translation>
        </message>
        <message>
            <source>Orientation</source>
            <translation>Orientación</translation>
        </message>
        <message>
            <source>Portrait</source>
            <translation>Vertical</translation>
        </message>
        <message>
            <source>Page order:</source>
            <translation>Orden de páginas:</translation>
        </message>
        <message>
            <source>top margin</source>
            <translation>Margen superior</translation>
        </message>
        <message>
            <source>left margin</source>
            <translation>Margen izquierdo</translation>
        </message>
        <message>
            <source>Page size:</source>
            <translation>Tamaño de página:</translation>
        </message>
        <message>
            <source>Reverse portrait</source>
            <translation>Vertical invertido</translation>
        </message>
        <message>
            <source>Millimeters (mm)</source>
            <translation>Milímetros (mm)</translation>
        </message>
        <message>
            <source>Points (pt)</source>
            <translation>Puntos (pt)</translation>
        </message>
        <message>
            <source>Pages per sheet:</source>
            <translation>Páginas por hoja:</translation>
        </message>
        <message>
            <source>Inches (in)</source>
            <translation>Pulgadas (in)</translation>
        </message>
        <message>
            <source>Reverse landscape</source>
            <translation>Apaisado invertido</translation>
        </message>
        <message>
            <source>Height:</source>
            <translation>Alto:</translation>
        </message>
    </context>
    <context>
        <name>QDialogButtonBox</name>
        <message>
            <source>OK</source>
            <translation>Aceptar</translation>
        </message>
    </context>
    <context>
        <name>QMessageBox</name>
        <message>
            <source>OK</source>
            <translation>Aceptar</translation>
        </message>
        <message>
            <source>Help</source>
            <translation>Ayuda</translation>
        </message>
        <message>
            <source>Show Details...</source>
            <translation>Mostrar los detalles...</translation>
        </message>
        <message>
            <source>Hide Details...</source>
            <translation>Ocultar los detalles...</translation>
        </message>
    </context>
    <context>
        <name>QPlatformTheme</name>
        <message>
            <source>OK</source>
            <translation>Aceptar</translation>
        </message>
        <message>
            <source>&amp;Yes</source>
            <translation>&amp;Sí</translation>
        </message>
        <message>
            <source>Help</source>
            <translation>Ayuda</translation>
        </message>
        <message>
            <source>Open</source>
            <translation>Abrir</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Guardar</translation>
        </message>
        <message>
            <source>Abort</source>
            <translation>Interrumpir</translation>
        </message>
        <message>
            <source>Apply</source>
            <translation>Aplicar</translation>
        </message>
        <message>
            <source>Close</source>
            <translation>Cerrar</translation>
        </message>
        <message>
            <source>Reset</source>
            <translation>Reinicializar</translation>
        </message>
        <message>
            <source>Retry</source>
            <translation>Reintentar</translation>
        </message>
        <message>
            <source>Restore Defaults</source>
            <translation>Restaurar los valores predeterminados</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancelar</translation>
        </message>
        <message>
            <source>Ignore</source>
            <translation>Ignorar</translation>
        </message>
        <message>
            <source>N&amp;o to All</source>
            <translation>N&amp;o a todo</translation>
        </message>
        <message>
            <source>Save All</source>
            <translation>Guardar todo</translation>
        </message>
        <message>
            <source>Discard</source>
            <translation>Descartar</translation>
        </message>
        <message>
            <source>Yes to &amp;All</source>
            <translation>Sí a &amp;todo</translation>
        </message>
    </context>
    <context>
        <name>QPrintDialog</name>
        <message>
            <source>OK</source>
            <translation>Aceptar</translation>
        </message>
        <message>
            <source>Even Pages</source>
            <translation>Páginas pares</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Imprimir</translation>
        </message>
        <message>
            <source>&amp;Options &lt;&lt;</source>
            <translation>&amp;Opciones &lt;&lt;</translation>
        </message>
        <message>
            <source>&amp;Options &gt;&gt;</source>
            <translation>&amp;Opciones &gt;&gt;</translation>
        </message>
        <message>
            <source>Left to Right, Top to Bottom</source>
            <translation>Izquierda a derecha, arriba a abajo</translation>
        </message>
        <message>
            <source>Right to Left, Bottom to Top</source>
            <translation>Derecha a izquierda, abajo a arriba</translation>
        </message>
        <message>
            <source>Write PDF file</source>
            <translation>Escribir archivo PDF</translation>
        </message>
        <message>
            <source>&amp;Print</source>
            <translation>Im&amp;primir</translation>
        </message>
        <message>
            <source>Options 'Pages Per Sheet' and 'Page Set' cannot be used together.
Please turn one of those options off.</source>
            <translation>Opciones «Páginas por Hoja» y «Set de Páginas» No pueden ser usadas a la vez.
Por favor desactiva una de las opciones.</translation>
        </message>
        <message>
            <source>%1 already exists.
Do you want to overwrite it?</source>
            <translation>%1 ya existe.
¿Desea sobrescribirlo?</translation>
        </message>
        <message>
            <source>Left to Right, Bottom to Top</source>
            <translation>Izquierda a derecha, abajo a arriba</translation>
        </message>
        <message>
            <source>Odd Pages</source>
            <translation>Páginas impares</translation>
        </message>
        <message>
            <source>Local file</source>
            <translation>Archivo local</translation>
        </message>
        <message>
            <source>Print to File (PDF)</source>
            <translation>Imprimir a archivo (PDF)</translation>
        </message>
        <message>
            <source>Print To File ...</source>
            <translation>Imprimir a fichero...</translation>
        </message>
        <message>
            <source>Automatic</source>
            <translation>Automático</translation>
        </message>
        <message>
            <source>Right to Left, Top to Bottom</source>
            <translation>Derecha A izquierda, arriba a abajo</translation>
        </message>
        <message>
            <source>Bottom to Top, Left to Right</source>
            <translation>Abajo a arriba, izquierda a derecha</translation>
        </message>
        <message>
            <source>The 'From' value cannot be greater than the 'To' value.</source>
            <translation>El campo «De» no puede ser mayor que el valor del campo «A».</translation>
        </message>
        <message>
            <source>All Pages</source>
            <translation>Todas las páginas</translation>
        </message>
        <message>
            <source>%1 is a directory.
Please choose a different file name.</source>
            <translation>%1 es un directorio.
Elija un nombre de fichero diferente.</translation>
        </message>
        <message>
            <source>File %1 is not writable.
Please choose a different file name.</source>
            <translation>No se puede escribir en el fichero %1.
Elija un nombre de fichero diferente.</translation>
        </message>
        <message>
            <source>Bottom to Top, Right to Left</source>
            <translation>Abajo a arriba, derecha a izquierda</translation>
        </message>
        <message>
            <source>Top to Bottom, Left to Right</source>
            <translation>Arriba a abajo, izquierda a derecha</translation>
        </message>
        <message>
            <source>Top to Bottom, Right to Left</source>
            <translation>Arriba a abajo, derecha a izquierda</translation>
        </message>
    </context>
    <context>
        <name>QPrintSettingsOutput</name>
        <message>
            <source>to</source>
            <translation>a</translation>
        </message>
        <message>
            <source>Form</source>
            <translation>Formulario</translation>
        </message>
        <message>
            <source>None</source>
            <translation>Ninguno</translation>
        </message>
        <message>
            <source>Print all</source>
            <translation>Imprimir todo</translation>
        </message>
        <message>
            <source>Current Page</source>
            <translation>Página Actual</translation>
        </message>
        <message>
            <source>Selection</source>
            <translation>Selección</translation>
        </message>
        <message>
            <source>Long side</source>
            <translation>Lado largo</translation>
        </message>
        <message>
            <source>Copies</source>
            <translation>Copias</translation>
        </message>
        <message>
            <source>Print range</source>
            <translation>Imprimir el intervalo</translation>
        </message>
        <message>
            <source>Color Mode</source>
            <translation>Modo de color</translation>
        </message>
        <message>
            <source>Options</source>
            <translation>Opciones</translation>
        </message>
        <message>
            <source>Output Settings</source>
            <translation>Configuración de salida</translation>
        </message>
        <message>
            <source>Reverse</source>
            <translation>Inverso</translation>
        </message>
        <message>
            <source>Grayscale</source>
            <translation>Escala de grises</translation>
        </message>
        <message>
            <source>Short side</source>
            <translation>Lado corto</translation>
        </message>
        <message>
            <source>Collate</source>
            <translation>Recopilar</translation>
        </message>
        <message>
            <source>Copies:</source>
            <translation>Copias:</translation>
        </message>
        <message>
            <source>Pages from</source>
            <translation>Páginas desde</translation>
        </message>
        <message>
            <source>Page Set:</source>
            <translation>Set de páginas:</translation>
        </message>
        <message>
            <source>Duplex Printing</source>
            <translation>Impresión a doble cara</translation>
        </message>
    </context>
    <context>
        <name>QGnomeTheme</name>
        <message>
            <source>&amp;OK</source>
            <translation>&amp;Aceptar</translation>
        </message>
        <message>
            <source>&amp;Save</source>
            <translation>&amp;Guardar</translation>
        </message>
        <message>
            <source>&amp;Close</source>
            <translation>&amp;Cerrar</translation>
        </message>
        <message>
            <source>Close without Saving</source>
            <translation>Cerrar sin guardar</translation>
        </message>
        <message>
            <source>&amp;Cancel</source>
            <translation>&amp;Cancelar</translation>
        </message>
    </context>
    <context>
        <name>QPrintWidget</name>
        <message>
            <source>Form</source>
            <translation>Formulario</translation>
        </message>
        <message>
            <source>Type:</source>
            <translation>Tipo:</translation>
        </message>
        <message>
            <source>&amp;Name:</source>
            <translation>&amp;Nombre:</translation>
        </message>
        <message>
            <source>Output &amp;file:</source>
            <translation>&amp;Fichero de salida:</translation>
        </message>
        <message>
            <source>P&amp;roperties</source>
            <translation>P&amp;ropiedades</translation>
        </message>
        <message>
            <source>Preview</source>
            <translation>Previsualización</translation>
        </message>
        <message>
            <source>Printer</source>
            <translation>Impresora</translation>
        </message>
        <message>
            <source>Location:</source>
            <translation>Ubicación:</translation>
        </message>
    </context>
    <context>
        <name>QCupsJobWidget</name>
        <message>
            <source>Job</source>
            <translation>Trabajo</translation>
        </message>
        <message>
            <source>End:</source>
            <translation>Final:</translation>
        </message>
        <message>
            <source>None</source>
            <translation>Ninguna</translation>
        </message>
        <message>
            <source>Banner Pages</source>
            <translation>Páginas de cabecera</translation>
        </message>
        <message>
            <source>Night (18:00 to 05:59)</source>
            <translation>Noche (18:00 a 05:59)</translation>
        </message>
        <message>
            <source>Specific Time</source>
            <translation>Hora específica</translation>
        </message>
        <message>
            <source>Billing information:</source>
            <translation>Información de facturación:</translation>
        </message>
        <message>
            <source>Scheduled printing:</source>
            <translation>Impresión programada:</translation>
        </message>
        <message>
            <source>Secret</source>
            <translation>Secreto</translation>
        </message>
        <message>
            <source>Top Secret</source>
            <translation>Alto secreto</translation>
        </message>
        <message>
            <source>Start:</source>
            <translation>Inicial:</translation>
        </message>
        <message>
            <source>Day (06:00 to 17:59)</source>
            <translation>Día (06:00 a 17:59)</translation>
        </message>
        <message>
            <source>Second Shift (16:00 to 23:59)</source>
            <translation>Segundo cambio (16:00 a 23:59)</translation>
        </message>
        <message>
            <source>Job Control</source>
            <translation>Control de Trabajos</translation>
        </message>
        <message>
            <source>Weekend (Saturday to Sunday)</source>
            <translation>Fin de semana (Sábado a Domingo)</translation>
        </message>
        <message>
            <source>Standard</source>
            <translation>Estándar</translation>
        </message>
        <message>
            <source>Classified</source>
            <translation>Clasificado</translation>
        </message>
        <message>
            <source>Third Shift (00:00 to 07:59)</source>
            <translation>Tercer cambio (00:00 a 07:59)</translation>
        </message>
        <message>
            <source>Hold Indefinitely</source>
            <translation>Mantener indefinidamente</translation>
        </message>
        <message>
            <source>Print Immediately</source>
            <translation>Imprimir inmediatamente</translation>
        </message>
        <message>
            <source>Confidential</source>
            <translation>Confidencial</translation>
        </message>
        <message>
            <source>Job priority:</source>
            <translation>Prioridad del trabajo:</translation>
        </message>
        <message>
            <source>Unclassified</source>
            <translation>Sin clasificar</translation>
        </message>
    </context>
    <context>
        <name>QScrollBar</name>
        <message>
            <source>Top</source>
            <translation>Parte superior</translation>
        </message>
        <message>
            <source>Scroll down</source>
            <translation>Desplazar hacia abajo</translation>
        </message>
        <message>
            <source>Scroll here</source>
            <translation>Desplazar hasta aquí</translation>
        </message>
        <message>
            <source>Scroll left</source>
            <translation>Desplazar hacia la izquierda</translation>
        </message>
        <message>
            <source>Bottom</source>
            <translation>Parte inferior</translation>
        </message>
        <message>
            <source>Page up</source>
            <translation>Una página hacia arriba</translation>
        </message>
        <message>
            <source>Page right</source>
            <translation>Una página a la derecha</translation>
        </message>
        <message>
            <source>Scroll up</source>
            <translation>Desplazar hacia arriba</translation>
        </message>
        <message>
            <source>Scroll right</source>
            <translation>Desplazar hacia la derecha</translation>
        </message>
        <message>
            <source>Left edge</source>
            <translation>Borde izquierdo</translation>
        </message>
        <message>
            <source>Page down</source>
            <translation>Una página hacia abajo</translation>
        </message>
        <message>
            <source>Page left</source>
            <translation>Una página a la izquierda</translation>
        </message>
        <message>
            <source>Right edge</source>
            <translation>Borde derecho</translation>
        </message>
    </context>
    <context>
        <name>QFileDialog</name>
        <message>
            <source>Back</source>
            <translation>Atrás</translation>
        </message>
        <message>
            <source>File</source>
            <translation>Archivo</translation>
        </message>
        <message>
            <source>Open</source>
            <translation>Abrir</translation>
        </message>
        <message>
            <source>&amp;Open</source>
            <translation>&amp;Abrir</translation>
        </message>
        <message>
            <source>&amp;Save</source>
            <translation>&amp;Guardar</translation>
        </message>
        <message>
            <source>Drive</source>
            <translation>Unidad</translation>
        </message>
        <message>
            <source>Files</source>
            <translation>Archivos</translation>
        </message>
        <message>
            <source>Show </source>
            <translation>Mostrar </translation>
        </message>
        <message>
            <source>'%1' is write protected.
Do you want to delete it anyway?</source>
            <translation>«%1» está protegido contra escritura.
¿Desea borrarlo de todas formas?</translation>
        </message>
        <message>
            <source>Are you sure you want to delete '%1'?</source>
            <translation>¿Está seguro de que quiere borrar «%1»?</translation>
        </message>
        <message>
            <source>List of places and bookmarks</source>
            <translation>Lista de lugares y marcadores</translation>
        </message>
        <message>
            <source>File &amp;name:</source>
            <translation>&amp;Nombre de fichero:</translation>
        </message>
        <message>
            <source>Alt+Left</source>
            <translation>Alt+Izquierda</translation>
        </message>
        <message>
            <source>Alt+Up</source>
            <translation>Alt+Arriba</translation>
        </message>
        <message>
            <source>File Folder</source>
            <translation>Nueva carpeta</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Borrar</translation>
        </message>
        <message>
            <source>New Folder</source>
            <translation>Nueva carpeta</translation>
        </message>
        <message>
            <source>Folder</source>
            <translation>Carpeta</translation>
        </message>
        <message>
            <source>Parent Directory</source>
            <translation>Directorio superior</translation>
        </message>
        <message>
            <source>&amp;New Folder</source>
            <translation>&amp;Nueva carpeta</translation>
        </message>
        <message>
            <source>Remove</source>
            <translation>Eliminar</translation>
        </message>
        <message>
            <source>My Computer</source>
            <translation>Mi equipo</translation>
        </message>
        <message>
            <source>Look in:</source>
            <translation>Ver en:</translation>
        </message>
        <message>
            <source>Alt+Right</source>
            <translation>Alt+Derecha</translation>
        </message>
        <message>
            <source>Create a New Folder</source>
            <translation>Crear una nueva carpeta</translation>
        </message>
        <message>
            <source>%1 File</source>
            <translation>Archivo %1</translation>
        </message>
        <message>
            <source>Files of type:</source>
            <translation>Ficheros de tipo:</translation>
        </message>
        <message>
            <source>Find Directory</source>
            <translation>Buscar directorio</translation>
        </message>
        <message>
            <source>Show &amp;hidden files</source>
            <translation>Mostrar los fic&amp;heros ocultos</translation>
        </message>
        <message>
            <source>Save As</source>
            <translation>Guardar como</translation>
        </message>
        <message>
            <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
            <translation>%1
Directorio no encontrado.
Verifique que el nombre del directorio es correcto.</translation>
        </message>
        <message>
            <source>Sidebar</source>
            <translation>Barra lateral</translation>
        </message>
        <message>
            <source>List View</source>
            <translation>Vista de lista</translation>
        </message>
        <message>
            <source>&amp;Choose</source>
            <translation>&amp;Seleccionar</translation>
        </message>
        <message>
            <source>&amp;Delete</source>
            <translation>&amp;Borrar</translation>
        </message>
        <message>
            <source>All files (*)</source>
            <translation>Todos los archivos (*)</translation>
        </message>
        <message>
            <source>All Files (*)</source>
            <translation>Todos los ficheros (*)</translation>
        </message>
        <message>
            <source>Directories</source>
            <translation>Directorios</translation>
        </message>
        <message>
            <source>&amp;Rename</source>
            <translation>Cambia&amp;r de nombre</translation>
        </message>
        <message>
            <source>Could not delete directory.</source>
            <translation>No fue posible borrar el directorio.</translation>
        </message>
        <message>
            <source>Directory:</source>
            <translation>Directorio:</translation>
        </message>
        <message>
            <source>Unknown</source>
            <translation>Desconocido</translation>
        </message>
        <message>
            <source>%1 already exists.
Do you want to replace it?</source>
            <translation>El fichero %1 ya existe.
¿Desea reemplazarlo?</translation>
        </message>
        <message>
            <source>Forward</source>
            <translation>Siguiente</translation>
        </message>
        <message>
            <source>Go forward</source>
            <translation>Ir hacia delante</translation>
        </message>
        <message>
            <source>Go to the parent directory</source>
            <translation>r al directorio superior</translation>
        </message>
        <message>
            <source>Recent Places</source>
            <translation>Lugares recientes</translation>
        </message>
        <message>
            <source>Go back</source>
            <translation>Ir atrás</translation>
        </message>
        <message>
            <source>Change to detail view mode</source>
            <translation>Cambiar a modo de vista detallada</translation>
        </message>
        <message>
            <source>Create New Folder</source>
            <translation>Crear nueva carpeta</translation>
        </message>
        <message>
            <source>Shortcut</source>
            <translation>Acceso directo</translation>
        </message>
        <message>
            <source>Detail View</source>
            <translation>Vista detallada</translation>
        </message>
        <message>
            <source>%1
File not found.
Please verify the correct file name was given.</source>
            <translation>%1
Fichero no encontrado.
Verifique que el nombre del fichero es correcto.</translation>
        </message>
        <message>
            <source>Change to list view mode</source>
            <translation>Cambiar el modo de vista de la lista</translation>
        </message>
    </context>
    <context>
        <name>QLineEdit</name>
        <message>
            <source>Cu&amp;t</source>
            <translation>Cor&amp;tar</translation>
        </message>
        <message>
            <source>&amp;Copy</source>
            <translation>&amp;Copiar</translation>
        </message>
        <message>
            <source>&amp;Redo</source>
            <translation>&amp;Rehacer</translation>
        </message>
        <message>
            <source>&amp;Undo</source>
            <translation>&amp;Deshacer</translation>
        </message>
        <message>
            <source>&amp;Paste</source>
            <translation>&amp;Pegar</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Borrar</translation>
        </message>
        <message>
            <source>Select All</source>
            <translation>Seleccionar todo</translation>
        </message>
    </context>
    <context>
        <name>QWidgetTextControl</name>
        <message>
            <source>Cu&amp;t</source>
            <translation>Cor&amp;tar</translation>
        </message>
        <message>
            <source>&amp;Copy</source>
            <translation>&amp;Copiar</translation>
        </message>
        <message>
            <source>&amp;Redo</source>
            <translation>&amp;Rehacer</translation>
        </message>
        <message>
            <source>&amp;Undo</source>
            <translation>&amp;Deshacer</translation>
        </message>
        <message>
            <source>&amp;Paste</source>
            <translation>&amp;Pegar</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Borrar</translation>
        </message>
        <message>
            <source>Select All</source>
            <translation>Seleccionar todo</translation>
        </message>
        <message>
            <source>Copy &amp;Link Location</source>
            <translation>Copiar la ubicación del en&amp;lace</translation>
        </message>
    </context>
    <context>
        <name>QPrintPropertiesWidget</name>
        <message>
            <source>Form</source>
            <translation>Formulario</translation>
        </message>
        <message>
            <source>Page</source>
            <translation>Página</translation>
        </message>
    </context>
    <context>
        <name>QFileSystemModel</name>
        <message>
            <source>Kind</source>
            <translation>Clase</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>Nombre</translation>
        </message>
        <message>
            <source>Size</source>
            <translation>Tamaño</translation>
        </message>
        <message>
            <source>Type</source>
            <translation>Tipo</translation>
        </message>
        <message>
            <source>%1 GB</source>
            <translation>%1 GiB</translation>
        </message>
        <message>
            <source>%1 KB</source>
            <translation>%1 KiB</translation>
        </message>
        <message>
            <source>%1 MB</source>
            <translation>%1 MiB</translation>
        </message>
        <message>
            <source>%1 TB</source>
            <translation>%1 TiB</translation>
        </message>
        <message>
            <source>&lt;b&gt;The name "%1" can not be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuations marks.</source>
            <translation>&lt;b&gt;No se puede utilizar el nombre «%1».&lt;/b&gt;&lt;p&gt;Intente usar otro nombre con menos caracteres o sin signos de puntuación.</translation>
        </message>
        <message>
            <source>My Computer</source>
            <translation>Mi Equipo</translation>
        </message>
        <message>
            <source>Computer</source>
            <translation>Equipo</translation>
        </message>
        <message>
            <source>Invalid filename</source>
            <translation>Nombre de fichero no válido</translation>
        </message>
        <message>
            <source>Date Modified</source>
            <translation>Última modificación</translation>
        </message>
    </context>
    <context>
        <name>QComboBox</name>
        <message>
            <source>True</source>
            <translation>Verdadero</translation>
        </message>
        <message>
            <source>False</source>
            <translation>Falso</translation>
        </message>
        <message>
            <source>Open the combo box selection popup</source>
            <translation>Abrir el menú desplegable del combo box</translation>
        </message>
    </context>
    <context>
        <name>QDialog</name>
        <message>
            <source>What's This?</source>
            <translation>¿Qué es esto?</translation>
        </message>
    </context>
    <context>
        <name>QUnicodeControlCharacterMenu</name>
        <message>
            <source>Insert Unicode control character</source>
            <translation>Insertar carácter de control Unicode</translation>
        </message>
        <message>
            <source>RLM Right-to-left mark</source>
            <translation>RLM Marca de-derecha-a-izquierda</translation>
        </message>
        <message>
            <source>LRM Left-to-right mark</source>
            <translation>LRM Marca de-izquierda-a-derecha</translation>
        </message>
    </context>
    <context>
        <name>QAbstractSpinBox</name>
        <message>
            <source>Step &amp;down</source>
            <translation>Re&amp;ducir</translation>
        </message>
        <message>
            <source>&amp;Step up</source>
            <translation>&amp;Aumentar</translation>
        </message>
        <message>
            <source>&amp;Select All</source>
            <translation>&amp;Seleccionar todo</translation>
        </message>
    </context>
    <context>
        <name>QTabBar</name>
        <message>
            <source>Scroll Left</source>
            <translation>Desplazar hacia la izquierda</translation>
        </message>
        <message>
            <source>Scroll Right</source>
            <translation>Desplazar hacia la derecha</translation>
        </message>
    </context>
    <context>
        <name>QPrintPropertiesDialog</name>
        <message>
            <source>Job Options</source>
            <translation>Opciones de trabajo</translation>
        </message>
        <message>
            <source>Printer Properties</source>
            <translation>Propiedades de impresora</translation>
        </message>
    </context>
    <context>
        <name>CloseButton</name>
        <message>
            <source>Close Tab</source>
            <translation>Cerrar pestaña</translation>
        </message>
    </context>
    <context>
        <name>QApplication</name>
        <message>
            <source>Executable '%1' requires Qt %2, found Qt %3.</source>
            <translation>El ejecutable «%1» requiere Qt %2 (se encontró Qt %3).</translation>
        </message>
        <message>
            <source>Incompatible Qt Library Error</source>
            <translation>Error: Biblioteca Qt incompatible</translation>
        </message>
    </context>
</TS>
