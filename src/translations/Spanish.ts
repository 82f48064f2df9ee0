<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>ActionAssignUi</name>
    <message>
        <source>BACK</source>
        <translation>VOLVER</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>APLICAR</translation>
    </message>
</context>
<context>
    <name>ActionBtn</name>
    <message>
        <source>ACTION</source>
        <translation>ACCIÓN</translation>
    </message>
</context>
<context>
    <name>ActionWid</name>
    <message>
        <source>ACTION</source>
        <translation>ACCIÓN</translation>
    </message>
</context>
<context>
    <name>AdvAssignWid</name>
    <message>
        <source>CTRL LEFT</source>
        <translation>CTRL IZQUIERDA</translation>
    </message>
    <message>
        <source>SHIFT LEFT</source>
        <translation>MAYÚS IZQUIERDA</translation>
    </message>
    <message>
        <source>ALT LEFT</source>
        <translation>ALT IZQUIERDA</translation>
    </message>
    <message>
        <source>CTRL RIGHT</source>
        <translation>CTRL DERECHA</translation>
    </message>
    <message>
        <source>SHIFT RIGHT</source>
        <translation>MAYÚS DERECHA</translation>
    </message>
    <message>
        <source>ALT RIGHT</source>
        <translation>ALT GR</translation>
    </message>
</context>
<context>
    <name>AppPathDlg</name>
    <message>
        <source>APPLICATION</source>
        <translation>APLICACIÓN</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>CERRAR</translation>
    </message>
    <message>
        <source>PATH</source>
        <translation>RUTA</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Abrir archivo</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>CANCELAR</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>APLICAR</translation>
    </message>
</context>
<context>
    <name>ApplicationBtn</name>
    <message>
        <source>Open File</source>
        <translation>Abrir archivo</translation>
    </message>
</context>
<context>
    <name>AssignMenuUi</name>
    <message>
        <source>REASSIGN KEY</source>
        <translation>REASIGNAR TECLA</translation>
    </message>
    <message>
        <source>CONTROLLER MAPPING MODE</source>
        <translation>MODO DE MANDO</translation>
    </message>
    <message>
        <source>DUAL ACTION MAPPING MODE</source>
        <translation>MODO DE DOBLE ACCIÓN</translation>
    </message>
    <message>
        <source>CLEAR KEY ASSIGNMENT</source>
        <translation>BORRAR ASIGNACIÓN</translation>
    </message>
    <message>
        <source>DISABLE KEY</source>
        <translation>DESACTIVAR TECLA</translation>
    </message>
</context>
<context>
    <name>AssignWid</name>
    <message>
        <source>warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Macro assign has reached maximum limit</source>
        <translation>Se ha alcanzado el límite de macros asignadas</translation>
    </message>
    <message>
        <source>Fail to find the path of the program.</source>
        <translation>No se encuentra la ruta del programa.</translation>
    </message>
    <message>
        <source>Please assign it manually:</source>
        <translation>Indíquela manualmente:</translation>
    </message>
</context>
<context>
    <name>BackLightUi</name>
    <message>
        <source>BACKLIGHT</source>
        <translation>ILUMINACIÓN</translation>
    </message>
</context>
<context>
    <name>Common</name>
    <message>
        <source>A1</source>
        <translation>A1</translation>
    </message>
    <message>
        <source>A2</source>
        <translation>A2</translation>
    </message>
    <message>
        <source>A3</source>
        <translation>A3</translation>
    </message>
    <message>
        <source>BLUR</source>
        <translation>DESENFOCAR</translation>
    </message>
    <message>
        <source>BRUSH SIZE</source>
        <translation>TAMAÑO DE PINCEL</translation>
    </message>
    <message>
        <source>BRUSH HARDNESS</source>
        <translation>DUREZA DE PINCEL</translation>
    </message>
    <message>
        <source>CROP</source>
        <translation>RECORTAR</translation>
    </message>
    <message>
        <source>CLONE STAMP</source>
        <translation>TAMPÓN DE CLONAR</translation>
    </message>
    <message>
        <source>DODGE</source>
        <translation>SOBREEXPONER</translation>
    </message>
    <message>
        <source>EYEDROP</source>
        <translation>CUENTAGOTAS</translation>
    </message>
    <message>
        <source>LASSO</source>
        <translation>LAZO</translation>
    </message>
    <message>
        <source>LAUNCH PS</source>
        <translation>INICIAR PS</translation>
    </message>
    <message>
        <source>MOVE</source>
        <translation>MOVER</translation>
    </message>
    <message>
        <source>RECTANGULAR MARQUEE</source>
        <translation>MARCO RECTANGULAR</translation>
    </message>
    <message>
        <source>MAGNIFYING</source>
        <translation>ZOOM</translation>
    </message>
    <message>
        <source>PEN</source>
        <translation>PLUMA</translation>
    </message>
    <message>
        <source>POINTER</source>
        <translation>PUNTERO</translation>
    </message>
    <message>
        <source>QUICK SELECTION</source>
        <translation>SELECCIÓN RÁPIDA</translation>
    </message>
    <message>
        <source>TEXT</source>
        <translation>TEXTO</translation>
    </message>
    <message>
        <source>BACKWARD</source>
        <translation>HACIA ATRÁS</translation>
    </message>
    <message>
        <source>COMPARISON</source>
        <translation>COMPARACIÓN</translation>
    </message>
    <message>
        <source>FORWARD</source>
        <translation>HACIA DELANTE</translation>
    </message>
    <message>
        <source>GO TO IN</source>
        <translation>IR A ENTRADA</translation>
    </message>
    <message>
        <source>GO TO OUT</source>
        <translation>IR A SALIDA</translation>
    </message>
    <message>
        <source>HAND</source>
        <translation>MANO</translation>
    </message>
    <message>
        <source>LAUNCH PR</source>
        <translation>INICIAR PR</translation>
    </message>
    <message>
        <source>MARK IN</source>
        <translation>MARCAR ENTRADA</translation>
    </message>
    <message>
        <source>MARK OUT</source>
        <translation>MARCAR SALIDA</translation>
    </message>
    <message>
        <source>PLAY-STOP TOGGLE</source>
        <translation>REPRODUCIR/DETENER</translation>
    </message>
    <message>
        <source>RAZOR</source>
        <translation>CUCHILLA</translation>
    </message>
    <message>
        <source>RIPPLE EDIT</source>
        <translation>EDICIÓN DE RIZO</translation>
    </message>
    <message>
        <source>SLIP</source>
        <translation>DESLIZAR</translation>
    </message>
    <message>
        <source>STEP BACK 1 FRAME</source>
        <translation>RETROCEDER 1 FOTOGRAMA</translation>
    </message>
    <message>
        <source>STEP FORWARD 1 FRAME</source>
        <translation>AVANZAR 1 FOTOGRAMA</translation>
    </message>
    <message>
        <source>SELECTION</source>
        <translation>SELECCIÓN</translation>
    </message>
    <message>
        <source>TRACK SELECT FORWARD</source>
        <translation>SELECCIONAR PISTA ADELANTE</translation>
    </message>
    <message>
        <source>ARTBOARD</source>
        <translation>MESA DE TRABAJO</translation>
    </message>
    <message>
        <source>BRUSH OPACITY</source>
        <translation>OPACIDAD DE PINCEL</translation>
    </message>
    <message>
        <source>DIRECT SELECTION</source>
        <translation>SELECCIÓN DIRECTA</translation>
    </message>
    <message>
        <source>ELLIPSE</source>
        <translation>ELIPSE</translation>
    </message>
    <message>
        <source>LAUNCH AI</source>
        <translation>INICIAR AI</translation>
    </message>
    <message>
        <source>POLYGON</source>
        <translation>POLÍGONO</translation>
    </message>
    <message>
        <source>ROTATE</source>
        <translation>ROTAR</translation>
    </message>
    <message>
        <source>RECTANGLE</source>
        <translation>RECTÁNGULO</translation>
    </message>
    <message>
        <source>ROUNDED RECTANGLE</source>
        <translation>RECTÁNGULO REDONDEADO</translation>
    </message>
    <message>
        <source>Play Action 1. Please assign F2 to an Action in Photoshop</source>
        <translation>Ejecuta la acción 1. Asigne F2 a una acción en Photoshop</translation>
    </message>
    <message>
        <source>Play Action 2. Please assign F3 to an Action in Photoshop</source>
        <translation>Ejecuta la acción 2. Asigne F3 a una acción en Photoshop</translation>
    </message>
    <message>
        <source>Play Action 3. Please assign F4 to an Action in Photoshop</source>
        <translation>Ejecuta la acción 3. Asigne F4 a una acción en Photoshop</translation>
    </message>
    <message>
        <source>To use Presso(Pressure Sensitive) Blur,
please assign N to Blur Tool in Photoshop(Alt+Shift+Ctrl+K)</source>
        <translation>Para usar el desenfoque sensible a la presión (Presso),
asigne N a la herramienta Desenfocar en Photoshop (Alt+Mayús+Ctrl+K)</translation>
    </message>
    <message>
        <source>COMPARISON
Please assign F2 to Comparison Tool in Premiere Pro(Ctrl+Alt+K)</source>
        <translation>COMPARACIÓN
Asigne F2 a la vista de comparación en Premiere Pro (Ctrl+Alt+K)</translation>
    </message>
    <message>
        <source>Play Action 1. Please assign F2 to an Action in Illustrator</source>
        <translation>Ejecuta la acción 1. Asigne F2 a una acción en Illustrator</translation>
    </message>
    <message>
        <source>Play Action 2. Please assign F3 to an Action in Illustrator</source>
        <translation>Ejecuta la acción 2. Asigne F3 a una acción en Illustrator</translation>
    </message>
    <message>
        <source>Play Action 3. Please assign F4 to an Action in Illustrator</source>
        <translation>Ejecuta la acción 3. Asigne F4 a una acción en Illustrator</translation>
    </message>
    <message>
        <source>POLYGON
Please assign 2 to Polygon Tool in Illustrator(Alt+Shift+Ctrl+K)</source>
        <translation>POLÍGONO
Asigne 2 a la herramienta Polígono en Illustrator (Alt+Mayús+Ctrl+K)</translation>
    </message>
    <message>
        <source>ROUNDED RECTANGLE
Please assign 1 to Rounded Rectangle Tool in Illustrator(Alt+Shift+Ctrl+K)</source>
        <translation>RECTÁNGULO REDONDEADO
Asigne 1 a la herramienta Rectángulo redondeado en Illustrator (Alt+Mayús+Ctrl+K)</translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation>DESCONOCIDO</translation>
    </message>
    <message>
        <source>PHOTOSHOP</source>
        <translation>PHOTOSHOP</translation>
    </message>
    <message>
        <source>PREMIERE PRO</source>
        <translation>PREMIERE PRO</translation>
    </message>
    <message>
        <source>ILLUSTRATOR</source>
        <translation>ILLUSTRATOR</translation>
    </message>
</context>
<context>
    <name>DualActionAdvUi</name>
    <message>
        <source>ACTION 1</source>
        <translation>ACCIÓN 1</translation>
    </message>
    <message>
        <source>ACTION 2</source>
        <translation>ACCIÓN 2</translation>
    </message>
    <message>
        <source>TYPE</source>
        <translation>TIPO</translation>
    </message>
</context>
<context>
    <name>DualActionDistUi</name>
    <message>
        <source>ACTIVATION DISTANCE</source>
        <translation>PUNTO DE ACTIVACIÓN</translation>
    </message>
    <message>
        <source>TRAVEL</source>
        <translation>RECORRIDO</translation>
    </message>
</context>
<context>
    <name>DualActionTipWid</name>
    <message>
        <source>ACTION1</source>
        <translation>ACCIÓN1</translation>
    </message>
    <message>
        <source>ACTION2</source>
        <translation>ACCIÓN2</translation>
    </message>
</context>
<context>
    <name>DualActionType</name>
    <message>
        <source>NORMAL
(ACTION1 &gt; ACTION2)</source>
        <translation>NORMAL
(ACCIÓN1 &gt; ACCIÓN2)</translation>
    </message>
    <message>
        <source>TOGGLE
(ACTION1 &gt; ACTION2 &gt; ACTION1)</source>
        <translation>ALTERNAR
(ACCIÓN1 &gt; ACCIÓN2 &gt; ACCIÓN1)</translation>
    </message>
    <message>
        <source>COMBINE
(ACTION1 &gt; ACTION1 + ACTION2)</source>
        <translation>COMBINAR
(ACCIÓN1 &gt; ACCIÓN1 + ACCIÓN2)</translation>
    </message>
</context>
<context>
    <name>GameCtrlWid</name>
    <message>
        <source>L</source>
        <translation>L</translation>
    </message>
    <message>
        <source>R</source>
        <translation>R</translation>
    </message>
</context>
<context>
    <name>InputUi</name>
    <message>
        <source>MAPPING INPUT</source>
        <translation>TIPO DE ENTRADA</translation>
    </message>
</context>
<context>
    <name>KeyCodes</name>
    <message>
        <source>KEYBOARD</source>
        <translation>TECLADO</translation>
    </message>
    <message>
        <source>MOUSE</source>
        <translation>RATÓN</translation>
    </message>
    <message>
        <source>MEDIA</source>
        <translation>MULTIMEDIA</translation>
    </message>
    <message>
        <source>MACRO</source>
        <translation>MACRO</translation>
    </message>
    <message>
        <source>GAME CONTROLLER</source>
        <translation>MANDO</translation>
    </message>
    <message>
        <source>APPLICATION</source>
        <translation>APLICACIÓN</translation>
    </message>
    <message>
        <source>DUAL ACTION</source>
        <translation>DOBLE ACCIÓN</translation>
    </message>
    <message>
        <source>PRESSO FUNCTIONS</source>
        <translation>FUNCIONES PRESSO</translation>
    </message>
    <message>
        <source>BACKLIGHT</source>
        <translation>ILUMINACIÓN</translation>
    </message>
    <message>
        <source>PROFILE</source>
        <translation>PERFIL</translation>
    </message>
    <message>
        <source>PRESET MODE</source>
        <translation>PREAJUSTES</translation>
    </message>
    <message>
        <source>DISABLED</source>
        <translation>DESACTIVADA</translation>
    </message>
    <message>
        <source>UNASSIGNED</source>
        <translation>SIN ASIGNAR</translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation>DESCONOCIDO</translation>
    </message>
    <message>
        <source>OPEN TASK MANAGER</source>
        <translation>ABRIR EL ADMINISTRADOR DE TAREAS</translation>
    </message>
    <message>
        <source>SWITCH BETWEEN OPEN APPS</source>
        <translation>CAMBIAR ENTRE APLICACIONES ABIERTAS</translation>
    </message>
    <message>
        <source>BROWSER BACKWARD</source>
        <translation>PÁGINA ANTERIOR DEL NAVEGADOR</translation>
    </message>
    <message>
        <source>BROWSER FORWARD</source>
        <translation>PÁGINA SIGUIENTE DEL NAVEGADOR</translation>
    </message>
    <message>
        <source>MOVE UP ONE SCREEN</source>
        <translation>SUBIR UNA PANTALLA</translation>
    </message>
    <message>
        <source>MOVE DOWN ONE SCREEN</source>
        <translation>BAJAR UNA PANTALLA</translation>
    </message>
    <message>
        <source>VIEW OPEN APPS</source>
        <translation>VER LAS APLICACIONES ABIERTAS</translation>
    </message>
    <message>
        <source>COPY SELECTED ITEMS TO CLIPBOARD</source>
        <translation>COPIAR LA SELECCIÓN AL PORTAPAPELES</translation>
    </message>
    <message>
        <source>CUT SELECTED ITEMS</source>
        <translation>CORTAR LA SELECCIÓN</translation>
    </message>
    <message>
        <source>PASTE CONTENT FROM CLIPBOARD</source>
        <translation>PEGAR EL CONTENIDO DEL PORTAPAPELES</translation>
    </message>
    <message>
        <source>SELECT ALL CONTENT</source>
        <translation>SELECCIONAR TODO</translation>
    </message>
    <message>
        <source>UNDO AN ACTION</source>
        <translation>DESHACER UNA ACCIÓN</translation>
    </message>
    <message>
        <source>REDO AN ACTION</source>
        <translation>REHACER UNA ACCIÓN</translation>
    </message>
    <message>
        <source>DELETE THE SELECTED ITEM AND MOVE IT TO THE RECYCLE BIN</source>
        <translation>ELIMINAR EL ELEMENTO Y MOVERLO A LA PAPELERA</translation>
    </message>
    <message>
        <source>OPEN THE START MENU</source>
        <translation>ABRIR EL MENÚ INICIO</translation>
    </message>
    <message>
        <source>SWITCH THE KEYBOARD LAYOUT</source>
        <translation>CAMBIAR LA DISTRIBUCIÓN DEL TECLADO</translation>
    </message>
    <message>
        <source>CLOSE ACTIVE WINDOW</source>
        <translation>CERRAR LA VENTANA ACTIVA</translation>
    </message>
    <message>
        <source>DISABLE</source>
        <translation>INACTIVA</translation>
    </message>
    <message>
        <source>F13</source>
        <translation>F13</translation>
    </message>
    <message>
        <source>F14</source>
        <translation>F14</translation>
    </message>
    <message>
        <source>F15</source>
        <translation>F15</translation>
    </message>
    <message>
        <source>F16</source>
        <translation>F16</translation>
    </message>
    <message>
        <source>F17</source>
        <translation>F17</translation>
    </message>
    <message>
        <source>F18</source>
        <translation>F18</translation>
    </message>
    <message>
        <source>F19</source>
        <translation>F19</translation>
    </message>
    <message>
        <source>F20</source>
        <translation>F20</translation>
    </message>
    <message>
        <source>F21</source>
        <translation>F21</translation>
    </message>
    <message>
        <source>F22</source>
        <translation>F22</translation>
    </message>
    <message>
        <source>F23</source>
        <translation>F23</translation>
    </message>
    <message>
        <source>F24</source>
        <translation>F24</translation>
    </message>
    <message>
        <source>00</source>
        <translation>00</translation>
    </message>
    <message>
        <source>=</source>
        <translation>=</translation>
    </message>
    <message>
        <source>EFFECT CYCLE+</source>
        <translation>EFECTO SIG.+</translation>
    </message>
    <message>
        <source>Power Mode:Disable</source>
        <translation>Modo de energía:Desactivado</translation>
    </message>
    <message>
        <source>Power Mode:Working</source>
        <translation>Modo de energía:Trabajo</translation>
    </message>
    <message>
        <source>Power Mode:Performance</source>
        <translation>Modo de energía:Rendimiento</translation>
    </message>
    <message>
        <source>Power Mode:Gaming</source>
        <translation>Modo de energía:Juego</translation>
    </message>
    <message>
        <source>LED DARKER-</source>
        <translation>BRILLO LED-</translation>
    </message>
    <message>
        <source>LED BRIGHTER+</source>
        <translation>BRILLO LED+</translation>
    </message>
    <message>
        <source>L TRIGGER</source>
        <translation>GATILLO IZQ.</translation>
    </message>
    <message>
        <source>R TRIGGER</source>
        <translation>GATILLO DER.</translation>
    </message>
    <message>
        <source>E-MAIL</source>
        <translation>CORREO</translation>
    </message>
    <message>
        <source>CALCULATOR</source>
        <translation>CALCULADORA</translation>
    </message>
    <message>
        <source>PLAY/PAUSE</source>
        <translation>REPRODUCIR/PAUSA</translation>
    </message>
    <message>
        <source>STOP</source>
        <translation>DETENER</translation>
    </message>
    <message>
        <source>PREVIOUS TRACK</source>
        <translation>PISTA ANTERIOR</translation>
    </message>
    <message>
        <source>NEXT TRACK</source>
        <translation>PISTA SIGUIENTE</translation>
    </message>
    <message>
        <source>VOLUME MUTE/UNMUTE</source>
        <translation>SILENCIAR/ACTIVAR SONIDO</translation>
    </message>
    <message>
        <source>VOLUME DOWN</source>
        <translation>BAJAR VOLUMEN</translation>
    </message>
    <message>
        <source>VOLUME UP</source>
        <translation>SUBIR VOLUMEN</translation>
    </message>
    <message>
        <source>WEB BROWSER</source>
        <translation>NAVEGADOR WEB</translation>
    </message>
    <message>
        <source>CALIBRATE</source>
        <translation>CALIBRAR</translation>
    </message>
    <message>
        <source>EFFECT CYCLE-</source>
        <translation>EFECTO ANT.-</translation>
    </message>
    <message>
        <source>SPEED DOWN LED EFFECT-</source>
        <translation>EFECTO LED MÁS LENTO-</translation>
    </message>
    <message>
        <source>SPEED UP LED EFFECT+</source>
        <translation>EFECTO LED MÁS RÁPIDO+</translation>
    </message>
    <message>
        <source>D PAD UP RIGHT</source>
        <translation>CRUCETA ARRIBA DERECHA</translation>
    </message>
    <message>
        <source>D PAD DOWN RIGHT</source>
        <translation>CRUCETA ABAJO DERECHA</translation>
    </message>
    <message>
        <source>D PAD DOWN LEFT</source>
        <translation>CRUCETA ABAJO IZQUIERDA</translation>
    </message>
    <message>
        <source>D PAD UP LEFT</source>
        <translation>CRUCETA ARRIBA IZQUIERDA</translation>
    </message>
    <message>
        <source>D PAD UP</source>
        <translation>CRUCETA ARRIBA</translation>
    </message>
    <message>
        <source>D PAD DOWN</source>
        <translation>CRUCETA ABAJO</translation>
    </message>
    <message>
        <source>D PAD LEFT</source>
        <translation>CRUCETA IZQUIERDA</translation>
    </message>
    <message>
        <source>D PAD RIGHT</source>
        <translation>CRUCETA DERECHA</translation>
    </message>
    <message>
        <source>A BUTTON</source>
        <translation>BOTÓN A</translation>
    </message>
    <message>
        <source>B BUTTON</source>
        <translation>BOTÓN B</translation>
    </message>
    <message>
        <source>X BUTTON</source>
        <translation>BOTÓN X</translation>
    </message>
    <message>
        <source>Y BUTTON</source>
        <translation>BOTÓN Y</translation>
    </message>
    <message>
        <source>L BUMPER</source>
        <translation>BOTÓN SUPERIOR IZQ.</translation>
    </message>
    <message>
        <source>R BUMPER</source>
        <translation>BOTÓN SUPERIOR DER.</translation>
    </message>
    <message>
        <source>GUIDE BUTTON</source>
        <translation>BOTÓN GUÍA</translation>
    </message>
    <message>
        <source>START BUTTON</source>
        <translation>BOTÓN START</translation>
    </message>
    <message>
        <source>HOME BUTTON</source>
        <translation>BOTÓN HOME</translation>
    </message>
    <message>
        <source>L STICK PRESS</source>
        <translation>PULSAR STICK IZQ.</translation>
    </message>
    <message>
        <source>R STICK PRESS</source>
        <translation>PULSAR STICK DER.</translation>
    </message>
    <message>
        <source>L STICK LEFT</source>
        <translation>STICK IZQ. IZQUIERDA</translation>
    </message>
    <message>
        <source>L STICK DOWN</source>
        <translation>STICK IZQ. ABAJO</translation>
    </message>
    <message>
        <source>R STICK LEFT</source>
        <translation>STICK DER. IZQUIERDA</translation>
    </message>
    <message>
        <source>R STICK DOWN</source>
        <translation>STICK DER. ABAJO</translation>
    </message>
    <message>
        <source>CURSOR UP</source>
        <translation>CURSOR ARRIBA</translation>
    </message>
    <message>
        <source>CURSOR RIGHT</source>
        <translation>CURSOR DERECHA</translation>
    </message>
    <message>
        <source>CURSOR DOWN</source>
        <translation>CURSOR ABAJO</translation>
    </message>
    <message>
        <source>CURSOR LEFT</source>
        <translation>CURSOR IZQUIERDA</translation>
    </message>
    <message>
        <source>SCROLL UP</source>
        <translation>RUEDA ARRIBA</translation>
    </message>
    <message>
        <source>SCROLL DOWN</source>
        <translation>RUEDA ABAJO</translation>
    </message>
    <message>
        <source>LEFT CLICK</source>
        <translation>CLIC IZQUIERDO</translation>
    </message>
    <message>
        <source>RIGHT CLICK</source>
        <translation>CLIC DERECHO</translation>
    </message>
    <message>
        <source>WHEEL CLICK</source>
        <translation>CLIC DE RUEDA</translation>
    </message>
    <message>
        <source>BACKWARD</source>
        <translation>ATRÁS</translation>
    </message>
    <message>
        <source>FORWARD</source>
        <translation>ADELANTE</translation>
    </message>
    <message>
        <source>L STICK RIGHT</source>
        <translation>STICK IZQ. DERECHA</translation>
    </message>
    <message>
        <source>L STICK UP</source>
        <translation>STICK IZQ. ARRIBA</translation>
    </message>
    <message>
        <source>R STICK RIGHT</source>
        <translation>STICK DER. DERECHA</translation>
    </message>
    <message>
        <source>R STICK UP</source>
        <translation>STICK DER. ARRIBA</translation>
    </message>
    <message>
        <source>SCROLL LEFT</source>
        <translation>DESPLAZAR IZQUIERDA</translation>
    </message>
    <message>
        <source>SCROLL RIGHT</source>
        <translation>DESPLAZAR DERECHA</translation>
    </message>
    <message>
        <source>PROFILE 1</source>
        <translation>PERFIL 1</translation>
    </message>
    <message>
        <source>PROFILE 2</source>
        <translation>PERFIL 2</translation>
    </message>
    <message>
        <source>PROFILE 3</source>
        <translation>PERFIL 3</translation>
    </message>
    <message>
        <source>PROFILE 4</source>
        <translation>PERFIL 4</translation>
    </message>
    <message>
        <source>PROFILE 5</source>
        <translation>PERFIL 5</translation>
    </message>
    <message>
        <source>PROFILE 6</source>
        <translation>PERFIL 6</translation>
    </message>
    <message>
        <source>PROFILE 7</source>
        <translation>PERFIL 7</translation>
    </message>
    <message>
        <source>PROFILE 8</source>
        <translation>PERFIL 8</translation>
    </message>
    <message>
        <source>PROFILE 9</source>
        <translation>PERFIL 9</translation>
    </message>
    <message>
        <source>PROFILE 10</source>
        <translation>PERFIL 10</translation>
    </message>
    <message>
        <source>PROFILE 11</source>
        <translation>PERFIL 11</translation>
    </message>
    <message>
        <source>PROFILE 12</source>
        <translation>PERFIL 12</translation>
    </message>
    <message>
        <source>PROFILE 13</source>
        <translation>PERFIL 13</translation>
    </message>
    <message>
        <source>PROFILE 14</source>
        <translation>PERFIL 14</translation>
    </message>
    <message>
        <source>PROFILE 15</source>
        <translation>PERFIL 15</translation>
    </message>
    <message>
        <source>PROFILE 16</source>
        <translation>PERFIL 16</translation>
    </message>
    <message>
        <source>PROFILE 17</source>
        <translation>PERFIL 17</translation>
    </message>
    <message>
        <source>PROFILE 18</source>
        <translation>PERFIL 18</translation>
    </message>
    <message>
        <source>PROFILE 19</source>
        <translation>PERFIL 19</translation>
    </message>
    <message>
        <source>PROFILE 20</source>
        <translation>PERFIL 20</translation>
    </message>
    <message>
        <source>PROFILE 21</source>
        <translation>PERFIL 21</translation>
    </message>
    <message>
        <source>PROFILE 22</source>
        <translation>PERFIL 22</translation>
    </message>
    <message>
        <source>PROFILE 23</source>
        <translation>PERFIL 23</translation>
    </message>
    <message>
        <source>PROFILE 24</source>
        <translation>PERFIL 24</translation>
    </message>
    <message>
        <source>PROFILE[+]</source>
        <translation>PERFIL[+]</translation>
    </message>
    <message>
        <source>PROFILE[-]</source>
        <translation>PERFIL[-]</translation>
    </message>
    <message>
        <source>PROFILE CYCLE+</source>
        <translation>PERFIL SIGUIENTE+</translation>
    </message>
    <message>
        <source>PROFILE CYCLE-</source>
        <translation>PERFIL ANTERIOR-</translation>
    </message>
    <message>
        <source>`</source>
        <translation>`</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>2</source>
        <translation>2</translation>
    </message>
    <message>
        <source>3</source>
        <translation>3</translation>
    </message>
    <message>
        <source>4</source>
        <translation>4</translation>
    </message>
    <message>
        <source>5</source>
        <translation>5</translation>
    </message>
    <message>
        <source>6</source>
        <translation>6</translation>
    </message>
    <message>
        <source>7</source>
        <translation>7</translation>
    </message>
    <message>
        <source>8</source>
        <translation>8</translation>
    </message>
    <message>
        <source>9</source>
        <translation>9</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>[</source>
        <translation>[</translation>
    </message>
    <message>
        <source>]</source>
        <translation>]</translation>
    </message>
    <message>
        <source>\</source>
        <translation>\</translation>
    </message>
    <message>
        <source>;</source>
        <translation>;</translation>
    </message>
    <message>
        <source>&apos;</source>
        <translation>&apos;</translation>
    </message>
    <message>
        <source>,</source>
        <translation>,</translation>
    </message>
    <message>
        <source>.</source>
        <translation>.</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>~</source>
        <translation>~</translation>
    </message>
    <message>
        <source>!</source>
        <translation>!</translation>
    </message>
    <message>
        <source>@</source>
        <translation>@</translation>
    </message>
    <message>
        <source>#</source>
        <translation>#</translation>
    </message>
    <message>
        <source>$</source>
        <translation>$</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>^</source>
        <translation>^</translation>
    </message>
    <message>
        <source>&amp;&amp;</source>
        <translation>&amp;&amp;</translation>
    </message>
    <message>
        <source>*</source>
        <translation>*</translation>
    </message>
    <message>
        <source>(</source>
        <translation>(</translation>
    </message>
    <message>
        <source>)</source>
        <translation>)</translation>
    </message>
    <message>
        <source>_</source>
        <translation>_</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>{</source>
        <translation>{</translation>
    </message>
    <message>
        <source>}</source>
        <translation>}</translation>
    </message>
    <message>
        <source>|</source>
        <translation>|</translation>
    </message>
    <message>
        <source>:</source>
        <translation>:</translation>
    </message>
    <message>
        <source>&quot;</source>
        <translation>&quot;</translation>
    </message>
    <message>
        <source>&lt;</source>
        <translation>&lt;</translation>
    </message>
    <message>
        <source>&gt;</source>
        <translation>&gt;</translation>
    </message>
    <message>
        <source>?</source>
        <translation>?</translation>
    </message>
    <message>
        <source>UNKNOWN KEY</source>
        <translation>TECLA DESCONOCIDA</translation>
    </message>
</context>
<context>
    <name>KeyboardAdvWid</name>
    <message>
        <source>ALPHANUMERIC</source>
        <translation>ALFANUMÉRICO</translation>
    </message>
    <message>
        <source>SYMBOLS &amp;&amp; PUNCTUATION</source>
        <translation>SÍMBOLOS &amp;&amp; PUNTUACIÓN</translation>
    </message>
    <message>
        <source>NAVIGATION KEYS</source>
        <translation>TECLAS DE NAVEGACIÓN</translation>
    </message>
    <message>
        <source>MODIFIER</source>
        <translation>MODIFICADORES</translation>
    </message>
    <message>
        <source>FUNCTION KEYS</source>
        <translation>TECLAS DE FUNCIÓN</translation>
    </message>
    <message>
        <source>NUMBERPAD KEYS</source>
        <translation>TECLADO NUMÉRICO</translation>
    </message>
</context>
<context>
    <name>MacroAdvUi</name>
    <message>
        <source>USER MACROS</source>
        <translation>MACROS PROPIAS</translation>
    </message>
    <message>
        <source>CREATE NEW MACRO</source>
        <translation>NUEVA MACRO</translation>
    </message>
    <message>
        <source>WINDOWS KEYBOARD SHORTCUTS</source>
        <translation>ATAJOS DE TECLADO DE WINDOWS</translation>
    </message>
</context>
<context>
    <name>MacroAdvWid</name>
    <message>
        <source>CTRL</source>
        <translation>CTRL</translation>
    </message>
    <message>
        <source>SHIFT</source>
        <translation>MAYÚS</translation>
    </message>
    <message>
        <source>ALT</source>
        <translation>ALT</translation>
    </message>
</context>
<context>
    <name>MacroUi</name>
    <message>
        <source>+ CREATE NEW MACRO</source>
        <translation>+ NUEVA MACRO</translation>
    </message>
</context>
<context>
    <name>MediaUi</name>
    <message>
        <source>MULTIMEDIA KEYS</source>
        <translation>TECLAS MULTIMEDIA</translation>
    </message>
</context>
<context>
    <name>PanelWid</name>
    <message>
        <source>Keyboard</source>
        <translation>Teclado</translation>
    </message>
    <message>
        <source>Gaming</source>
        <translation>Juegos</translation>
    </message>
    <message>
        <source>Creative Application</source>
        <translation>Aplicaciones creativas</translation>
    </message>
    <message>
        <source>Standard WASD</source>
        <translation>WASD estándar</translation>
    </message>
    <message>
        <source>Standard ESDF</source>
        <translation>ESDF estándar</translation>
    </message>
    <message>
        <source>Numpad Mode</source>
        <translation>Teclado numérico</translation>
    </message>
    <message>
        <source>FPS Mode</source>
        <translation>Modo FPS</translation>
    </message>
    <message>
        <source>Driving Mode</source>
        <translation>Modo conducción</translation>
    </message>
    <message>
        <source>Adv. Flight Mode</source>
        <translation>Modo vuelo (avanz.)</translation>
    </message>
    <message>
        <source>Photoshop</source>
        <translation>Photoshop</translation>
    </message>
    <message>
        <source>Illustrator</source>
        <translation>Illustrator</translation>
    </message>
    <message>
        <source>Premiere Pro</source>
        <translation>Premiere Pro</translation>
    </message>
</context>
<context>
    <name>PressoFunUi</name>
    <message>
        <source>DEADZONE CALIBRATION</source>
        <translation>CALIBRACIÓN DE LA ZONA MUERTA</translation>
    </message>
</context>
<context>
    <name>PressoUi</name>
    <message>
        <source>PRESSURE</source>
        <translation>SENSOR DE</translation>
    </message>
    <message>
        <source>SENSING</source>
        <translation>PRESIÓN</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>SÍ</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>NO</translation>
    </message>
</context>
<context>
    <name>ProfileUi</name>
    <message>
        <source>PROFILE</source>
        <translation>PERFIL</translation>
    </message>
</context>
<context>
    <name>ReassignDlg</name>
    <message>
        <source>KEY ASSIGNMENT</source>
        <translation>ASIGNACIÓN DE TECLA</translation>
    </message>
    <message>
        <source>KEY ASSIGNMENT - VANTRIX </source>
        <translation>ASIGNACIÓN DE TECLA - VANTRIX </translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>CERRAR</translation>
    </message>
    <message>
        <source>SEARCH</source>
        <translation>BUSCAR</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>CANCELAR</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>APLICAR</translation>
    </message>
    <message>
        <source>MOUSE BUTTONS</source>
        <translation>BOTONES DEL RATÓN</translation>
    </message>
    <message>
        <source>MEDIA COMMANDS</source>
        <translation>CONTROLES MULTIMEDIA</translation>
    </message>
    <message>
        <source>PRESSO FUNCTIONS</source>
        <translation>FUNCIONES PRESSO</translation>
    </message>
    <message>
        <source>BACKLIGHT</source>
        <translation>ILUMINACIÓN</translation>
    </message>
    <message>
        <source>PROFILE</source>
        <translation>PERFIL</translation>
    </message>
</context>
<context>
    <name>VantrixMapWid</name>
    <message>
        <source>SIMPLE</source>
        <translation>SIMPLE</translation>
    </message>
    <message>
        <source>ADVANCED</source>
        <translation>AVANZADO</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>APLICAR</translation>
    </message>
    <message>
        <source>RESET</source>
        <translation>RESTABLECER</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Are you sure you want to reset?</source>
        <translation>¿Seguro que desea restablecer?</translation>
    </message>
</context>
</TS>
