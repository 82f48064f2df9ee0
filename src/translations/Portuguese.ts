<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_PT" sourcelanguage="en_US">
<context>
    <name>ActionAssignUi</name>
    <message>
        <source>BACK</source>
        <translation>VOLTAR</translation>
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
        <translation>AÇÃO</translation>
    </message>
</context>
<context>
    <name>ActionWid</name>
    <message>
        <source>ACTION</source>
        <translation>AÇÃO</translation>
    </message>
</context>
<context>
    <name>AdvAssignWid</name>
    <message>
        <source>CTRL LEFT</source>
        <translation>CTRL ESQUERDA</translation>
    </message>
    <message>
        <source>SHIFT LEFT</source>
        <translation>SHIFT ESQUERDA</translation>
    </message>
    <message>
        <source>ALT LEFT</source>
        <translation>ALT ESQUERDA</translation>
    </message>
    <message>
        <source>CTRL RIGHT</source>
        <translation>CTRL DIREITA</translation>
    </message>
    <message>
        <source>SHIFT RIGHT</source>
        <translation>SHIFT DIREITA</translation>
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
        <translation>APLICAÇÃO</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>FECHAR</translation>
    </message>
    <message>
        <source>PATH</source>
        <translation>CAMINHO</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Abrir ficheiro</translation>
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
        <translation>Abrir ficheiro</translation>
    </message>
</context>
<context>
    <name>AssignMenuUi</name>
    <message>
        <source>REASSIGN KEY</source>
        <translation>REATRIBUIR TECLA</translation>
    </message>
    <message>
        <source>CONTROLLER MAPPING MODE</source>
        <translation>MODO DE COMANDO</translation>
    </message>
    <message>
        <source>DUAL ACTION MAPPING MODE</source>
        <translation>MODO DE DUPLA AÇÃO</translation>
    </message>
    <message>
        <source>CLEAR KEY ASSIGNMENT</source>
        <translation>LIMPAR ATRIBUIÇÃO</translation>
    </message>
    <message>
        <source>DISABLE KEY</source>
        <translation>DESATIVAR TECLA</translation>
    </message>
</context>
<context>
    <name>AssignWid</name>
    <message>
        <source>warning</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>Macro assign has reached maximum limit</source>
        <translation>Foi atingido o limite de macros atribuídas</translation>
    </message>
    <message>
        <source>Fail to find the path of the program.</source>
        <translation>Não foi possível encontrar o caminho do programa.</translation>
    </message>
    <message>
        <source>Please assign it manually:</source>
        <translation>Indique-o manualmente:</translation>
    </message>
</context>
<context>
    <name>BackLightUi</name>
    <message>
        <source>BACKLIGHT</source>
        <translation>ILUMINAÇÃO</translation>
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
        <translation>DESFOQUE</translation>
    </message>
    <message>
        <source>BRUSH SIZE</source>
        <translation>TAMANHO DO PINCEL</translation>
    </message>
    <message>
        <source>BRUSH HARDNESS</source>
        <translation>DUREZA DO PINCEL</translation>
    </message>
    <message>
        <source>CROP</source>
        <translation>CORTE</translation>
    </message>
    <message>
        <source>CLONE STAMP</source>
        <translation>CARIMBO DE CLONE</translation>
    </message>
    <message>
        <source>DODGE</source>
        <translation>SUBEXPOSIÇÃO</translation>
    </message>
    <message>
        <source>EYEDROP</source>
        <translation>CONTA-GOTAS</translation>
    </message>
    <message>
        <source>LASSO</source>
        <translation>LAÇO</translation>
    </message>
    <message>
        <source>LAUNCH PS</source>
        <translation>ABRIR PS</translation>
    </message>
    <message>
        <source>MOVE</source>
        <translation>MOVER</translation>
    </message>
    <message>
        <source>RECTANGULAR MARQUEE</source>
        <translation>LETREIRO RETANGULAR</translation>
    </message>
    <message>
        <source>MAGNIFYING</source>
        <translation>ZOOM</translation>
    </message>
    <message>
        <source>PEN</source>
        <translation>CANETA</translation>
    </message>
    <message>
        <source>POINTER</source>
        <translation>PONTEIRO</translation>
    </message>
    <message>
        <source>QUICK SELECTION</source>
        <translation>SELEÇÃO RÁPIDA</translation>
    </message>
    <message>
        <source>TEXT</source>
        <translation>TEXTO</translation>
    </message>
    <message>
        <source>BACKWARD</source>
        <translation>PARA TRÁS</translation>
    </message>
    <message>
        <source>COMPARISON</source>
        <translation>COMPARAÇÃO</translation>
    </message>
    <message>
        <source>FORWARD</source>
        <translation>PARA A FRENTE</translation>
    </message>
    <message>
        <source>GO TO IN</source>
        <translation>IR PARA A ENTRADA</translation>
    </message>
    <message>
        <source>GO TO OUT</source>
        <translation>IR PARA A SAÍDA</translation>
    </message>
    <message>
        <source>HAND</source>
        <translation>MÃO</translation>
    </message>
    <message>
        <source>LAUNCH PR</source>
        <translation>ABRIR PR</translation>
    </message>
    <message>
        <source>MARK IN</source>
        <translation>MARCAR ENTRADA</translation>
    </message>
    <message>
        <source>MARK OUT</source>
        <translation>MARCAR SAÍDA</translation>
    </message>
    <message>
        <source>PLAY-STOP TOGGLE</source>
        <translation>REPRODUZIR/PARAR</translation>
    </message>
    <message>
        <source>RAZOR</source>
        <translation>LÂMINA</translation>
    </message>
    <message>
        <source>RIPPLE EDIT</source>
        <translation>EDIÇÃO DE ONDULAÇÃO</translation>
    </message>
    <message>
        <source>SLIP</source>
        <translation>DESLOCAR</translation>
    </message>
    <message>
        <source>STEP BACK 1 FRAME</source>
        <translation>RECUAR 1 FOTOGRAMA</translation>
    </message>
    <message>
        <source>STEP FORWARD 1 FRAME</source>
        <translation>AVANÇAR 1 FOTOGRAMA</translation>
    </message>
    <message>
        <source>SELECTION</source>
        <translation>SELEÇÃO</translation>
    </message>
    <message>
        <source>TRACK SELECT FORWARD</source>
        <translation>SELECIONAR FAIXA À FRENTE</translation>
    </message>
    <message>
        <source>ARTBOARD</source>
        <translation>PRANCHETA</translation>
    </message>
    <message>
        <source>BRUSH OPACITY</source>
        <translation>OPACIDADE DO PINCEL</translation>
    </message>
    <message>
        <source>DIRECT SELECTION</source>
        <translation>SELEÇÃO DIRETA</translation>
    </message>
    <message>
        <source>ELLIPSE</source>
        <translation>ELIPSE</translation>
    </message>
    <message>
        <source>LAUNCH AI</source>
        <translation>ABRIR AI</translation>
    </message>
    <message>
        <source>POLYGON</source>
        <translation>POLÍGONO</translation>
    </message>
    <message>
        <source>ROTATE</source>
        <translation>RODAR</translation>
    </message>
    <message>
        <source>RECTANGLE</source>
        <translation>RETÂNGULO</translation>
    </message>
    <message>
        <source>ROUNDED RECTANGLE</source>
        <translation>RETÂNGULO ARREDONDADO</translation>
    </message>
    <message>
        <source>Play Action 1. Please assign F2 to an Action in Photoshop</source>
        <translation>Executa a ação 1. Atribua F2 a uma ação no Photoshop</translation>
    </message>
    <message>
        <source>Play Action 2. Please assign F3 to an Action in Photoshop</source>
        <translation>Executa a ação 2. Atribua F3 a uma ação no Photoshop</translation>
    </message>
    <message>
        <source>Play Action 3. Please assign F4 to an Action in Photoshop</source>
        <translation>Executa a ação 3. Atribua F4 a uma ação no Photoshop</translation>
    </message>
    <message>
        <source>To use Presso(Pressure Sensitive) Blur,
please assign N to Blur Tool in Photoshop(Alt+Shift+Ctrl+K)</source>
        <translation>Para usar o desfoque sensível à pressão (Presso),
atribua N à ferramenta Desfoque no Photoshop (Alt+Shift+Ctrl+K)</translation>
    </message>
    <message>
        <source>COMPARISON
Please assign F2 to Comparison Tool in Premiere Pro(Ctrl+Alt+K)</source>
        <translation>COMPARAÇÃO
Atribua F2 à vista de comparação no Premiere Pro (Ctrl+Alt+K)</translation>
    </message>
    <message>
        <source>Play Action 1. Please assign F2 to an Action in Illustrator</source>
        <translation>Executa a ação 1. Atribua F2 a uma ação no Illustrator</translation>
    </message>
    <message>
        <source>Play Action 2. Please assign F3 to an Action in Illustrator</source>
        <translation>Executa a ação 2. Atribua F3 a uma ação no Illustrator</translation>
    </message>
    <message>
        <source>Play Action 3. Please assign F4 to an Action in Illustrator</source>
        <translation>Executa a ação 3. Atribua F4 a uma ação no Illustrator</translation>
    </message>
    <message>
        <source>POLYGON
Please assign 2 to Polygon Tool in Illustrator(Alt+Shift+Ctrl+K)</source>
        <translation>POLÍGONO
Atribua 2 à ferramenta Polígono no Illustrator (Alt+Shift+Ctrl+K)</translation>
    </message>
    <message>
        <source>ROUNDED RECTANGLE
Please assign 1 to Rounded Rectangle Tool in Illustrator(Alt+Shift+Ctrl+K)</source>
        <translation>RETÂNGULO ARREDONDADO
Atribua 1 à ferramenta Retângulo arredondado no Illustrator (Alt+Shift+Ctrl+K)</translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation>DESCONHECIDO</translation>
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
        <translation>AÇÃO 1</translation>
    </message>
    <message>
        <source>ACTION 2</source>
        <translation>AÇÃO 2</translation>
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
        <translation>PONTO DE ATIVAÇÃO</translation>
    </message>
    <message>
        <source>TRAVEL</source>
        <translation>CURSO</translation>
    </message>
</context>
<context>
    <name>DualActionTipWid</name>
    <message>
        <source>ACTION1</source>
        <translation>AÇÃO1</translation>
    </message>
    <message>
        <source>ACTION2</source>
        <translation>AÇÃO2</translation>
    </message>
</context>
<context>
    <name>DualActionType</name>
    <message>
        <source>NORMAL
(ACTION1 &gt; ACTION2)</source>
        <translation>NORMAL
(AÇÃO1 &gt; AÇÃO2)</translation>
    </message>
    <message>
        <source>TOGGLE
(ACTION1 &gt; ACTION2 &gt; ACTION1)</source>
        <translation>ALTERNAR
(AÇÃO1 &gt; AÇÃO2 &gt; AÇÃO1)</translation>
    </message>
    <message>
        <source>COMBINE
(ACTION1 &gt; ACTION1 + ACTION2)</source>
        <translation>COMBINAR
(AÇÃO1 &gt; AÇÃO1 + AÇÃO2)</translation>
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
        <translation>RATO</translation>
    </message>
    <message>
        <source>MEDIA</source>
        <translation>MULTIMÉDIA</translation>
    </message>
    <message>
        <source>MACRO</source>
        <translation>MACRO</translation>
    </message>
    <message>
        <source>GAME CONTROLLER</source>
        <translation>COMANDO</translation>
    </message>
    <message>
        <source>APPLICATION</source>
        <translation>APLICAÇÃO</translation>
    </message>
    <message>
        <source>DUAL ACTION</source>
        <translation>DUPLA AÇÃO</translation>
    </message>
    <message>
        <source>PRESSO FUNCTIONS</source>
        <translation>FUNÇÕES PRESSO</translation>
    </message>
    <message>
        <source>BACKLIGHT</source>
        <translation>ILUMINAÇÃO</translation>
    </message>
    <message>
        <source>PROFILE</source>
        <translation>PERFIL</translation>
    </message>
    <message>
        <source>PRESET MODE</source>
        <translation>PREDEFINIÇÕES</translation>
    </message>
    <message>
        <source>DISABLED</source>
        <translation>DESATIVADA</translation>
    </message>
    <message>
        <source>UNASSIGNED</source>
        <translation>NÃO ATRIBUÍDA</translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation>DESCONHECIDO</translation>
    </message>
    <message>
        <source>OPEN TASK MANAGER</source>
        <translation>ABRIR O GESTOR DE TAREFAS</translation>
    </message>
    <message>
        <source>SWITCH BETWEEN OPEN APPS</source>
        <translation>ALTERNAR ENTRE APLICAÇÕES ABERTAS</translation>
    </message>
    <message>
        <source>BROWSER BACKWARD</source>
        <translation>PÁGINA ANTERIOR DO NAVEGADOR</translation>
    </message>
    <message>
        <source>BROWSER FORWARD</source>
        <translation>PÁGINA SEGUINTE DO NAVEGADOR</translation>
    </message>
    <message>
        <source>MOVE UP ONE SCREEN</source>
        <translation>SUBIR UM ECRÃ</translation>
    </message>
    <message>
        <source>MOVE DOWN ONE SCREEN</source>
        <translation>DESCER UM ECRÃ</translation>
    </message>
    <message>
        <source>VIEW OPEN APPS</source>
        <translation>VER APLICAÇÕES ABERTAS</translation>
    </message>
    <message>
        <source>COPY SELECTED ITEMS TO CLIPBOARD</source>
        <translation>COPIAR A SELEÇÃO PARA A ÁREA DE TRANSFERÊNCIA</translation>
    </message>
    <message>
        <source>CUT SELECTED ITEMS</source>
        <translation>CORTAR A SELEÇÃO</translation>
    </message>
    <message>
        <source>PASTE CONTENT FROM CLIPBOARD</source>
        <translation>COLAR DA ÁREA DE TRANSFERÊNCIA</translation>
    </message>
    <message>
        <source>SELECT ALL CONTENT</source>
        <translation>SELECIONAR TUDO</translation>
    </message>
    <message>
        <source>UNDO AN ACTION</source>
        <translation>ANULAR UMA AÇÃO</translation>
    </message>
    <message>
        <source>REDO AN ACTION</source>
        <translation>REFAZER UMA AÇÃO</translation>
    </message>
    <message>
        <source>DELETE THE SELECTED ITEM AND MOVE IT TO THE RECYCLE BIN</source>
        <translation>ELIMINAR O ITEM E MOVÊ-LO PARA A RECICLAGEM</translation>
    </message>
    <message>
        <source>OPEN THE START MENU</source>
        <translation>ABRIR O MENU INICIAR</translation>
    </message>
    <message>
        <source>SWITCH THE KEYBOARD LAYOUT</source>
        <translation>MUDAR O ESQUEMA DO TECLADO</translation>
    </message>
    <message>
        <source>CLOSE ACTIVE WINDOW</source>
        <translation>FECHAR A JANELA ATIVA</translation>
    </message>
    <message>
        <source>DISABLE</source>
        <translation>INATIVA</translation>
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
        <translation>EFEITO SEG.+</translation>
    </message>
    <message>
        <source>Power Mode:Disable</source>
        <translation>Modo de energia:Desativado</translation>
    </message>
    <message>
        <source>Power Mode:Working</source>
        <translation>Modo de energia:Trabalho</translation>
    </message>
    <message>
        <source>Power Mode:Performance</source>
        <translation>Modo de energia:Desempenho</translation>
    </message>
    <message>
        <source>Power Mode:Gaming</source>
        <translation>Modo de energia:Jogo</translation>
    </message>
    <message>
        <source>LED DARKER-</source>
        <translation>BRILHO LED-</translation>
    </message>
    <message>
        <source>LED BRIGHTER+</source>
        <translation>BRILHO LED+</translation>
    </message>
    <message>
        <source>L TRIGGER</source>
        <translation>GATILHO ESQ.</translation>
    </message>
    <message>
        <source>R TRIGGER</source>
        <translation>GATILHO DIR.</translation>
    </message>
    <message>
        <source>E-MAIL</source>
        <translation>E-MAIL</translation>
    </message>
    <message>
        <source>CALCULATOR</source>
        <translation>CALCULADORA</translation>
    </message>
    <message>
        <source>PLAY/PAUSE</source>
        <translation>REPRODUZIR/PAUSA</translation>
    </message>
    <message>
        <source>STOP</source>
        <translation>PARAR</translation>
    </message>
    <message>
        <source>PREVIOUS TRACK</source>
        <translation>FAIXA ANTERIOR</translation>
    </message>
    <message>
        <source>NEXT TRACK</source>
        <translation>FAIXA SEGUINTE</translation>
    </message>
    <message>
        <source>VOLUME MUTE/UNMUTE</source>
        <translation>LIGAR/DESLIGAR SOM</translation>
    </message>
    <message>
        <source>VOLUME DOWN</source>
        <translation>DIMINUIR VOLUME</translation>
    </message>
    <message>
        <source>VOLUME UP</source>
        <translation>AUMENTAR VOLUME</translation>
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
        <translation>EFEITO ANT.-</translation>
    </message>
    <message>
        <source>SPEED DOWN LED EFFECT-</source>
        <translation>EFEITO LED MAIS LENTO-</translation>
    </message>
    <message>
        <source>SPEED UP LED EFFECT+</source>
        <translation>EFEITO LED MAIS RÁPIDO+</translation>
    </message>
    <message>
        <source>D PAD UP RIGHT</source>
        <translation>CRUZETA CIMA DIREITA</translation>
    </message>
    <message>
        <source>D PAD DOWN RIGHT</source>
        <translation>CRUZETA BAIXO DIREITA</translation>
    </message>
    <message>
        <source>D PAD DOWN LEFT</source>
        <translation>CRUZETA BAIXO ESQUERDA</translation>
    </message>
    <message>
        <source>D PAD UP LEFT</source>
        <translation>CRUZETA CIMA ESQUERDA</translation>
    </message>
    <message>
        <source>D PAD UP</source>
        <translation>CRUZETA CIMA</translation>
    </message>
    <message>
        <source>D PAD DOWN</source>
        <translation>CRUZETA BAIXO</translation>
    </message>
    <message>
        <source>D PAD LEFT</source>
        <translation>CRUZETA ESQUERDA</translation>
    </message>
    <message>
        <source>D PAD RIGHT</source>
        <translation>CRUZETA DIREITA</translation>
    </message>
    <message>
        <source>A BUTTON</source>
        <translation>BOTÃO A</translation>
    </message>
    <message>
        <source>B BUTTON</source>
        <translation>BOTÃO B</translation>
    </message>
    <message>
        <source>X BUTTON</source>
        <translation>BOTÃO X</translation>
    </message>
    <message>
        <source>Y BUTTON</source>
        <translation>BOTÃO Y</translation>
    </message>
    <message>
        <source>L BUMPER</source>
        <translation>BOTÃO SUPERIOR ESQ.</translation>
    </message>
    <message>
        <source>R BUMPER</source>
        <translation>BOTÃO SUPERIOR DIR.</translation>
    </message>
    <message>
        <source>GUIDE BUTTON</source>
        <translation>BOTÃO GUIA</translation>
    </message>
    <message>
        <source>START BUTTON</source>
        <translation>BOTÃO START</translation>
    </message>
    <message>
        <source>HOME BUTTON</source>
        <translation>BOTÃO HOME</translation>
    </message>
    <message>
        <source>L STICK PRESS</source>
        <translation>PREMIR STICK ESQ.</translation>
    </message>
    <message>
        <source>R STICK PRESS</source>
        <translation>PREMIR STICK DIR.</translation>
    </message>
    <message>
        <source>L STICK LEFT</source>
        <translation>STICK ESQ. ESQUERDA</translation>
    </message>
    <message>
        <source>L STICK DOWN</source>
        <translation>STICK ESQ. BAIXO</translation>
    </message>
    <message>
        <source>R STICK LEFT</source>
        <translation>STICK DIR. ESQUERDA</translation>
    </message>
    <message>
        <source>R STICK DOWN</source>
        <translation>STICK DIR. BAIXO</translation>
    </message>
    <message>
        <source>CURSOR UP</source>
        <translation>CURSOR CIMA</translation>
    </message>
    <message>
        <source>CURSOR RIGHT</source>
        <translation>CURSOR DIREITA</translation>
    </message>
    <message>
        <source>CURSOR DOWN</source>
        <translation>CURSOR BAIXO</translation>
    </message>
    <message>
        <source>CURSOR LEFT</source>
        <translation>CURSOR ESQUERDA</translation>
    </message>
    <message>
        <source>SCROLL UP</source>
        <translation>RODA PARA CIMA</translation>
    </message>
    <message>
        <source>SCROLL DOWN</source>
        <translation>RODA PARA BAIXO</translation>
    </message>
    <message>
        <source>LEFT CLICK</source>
        <translation>CLIQUE ESQUERDO</translation>
    </message>
    <message>
        <source>RIGHT CLICK</source>
        <translation>CLIQUE DIREITO</translation>
    </message>
    <message>
        <source>WHEEL CLICK</source>
        <translation>CLIQUE DA RODA</translation>
    </message>
    <message>
        <source>BACKWARD</source>
        <translation>RETROCEDER</translation>
    </message>
    <message>
        <source>FORWARD</source>
        <translation>AVANÇAR</translation>
    </message>
    <message>
        <source>L STICK RIGHT</source>
        <translation>STICK ESQ. DIREITA</translation>
    </message>
    <message>
        <source>L STICK UP</source>
        <translation>STICK ESQ. CIMA</translation>
    </message>
    <message>
        <source>R STICK RIGHT</source>
        <translation>STICK DIR. DIREITA</translation>
    </message>
    <message>
        <source>R STICK UP</source>
        <translation>STICK DIR. CIMA</translation>
    </message>
    <message>
        <source>SCROLL LEFT</source>
        <translation>DESLOCAR ESQUERDA</translation>
    </message>
    <message>
        <source>SCROLL RIGHT</source>
        <translation>DESLOCAR DIREITA</translation>
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
        <translation>PERFIL SEGUINTE+</translation>
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
        <translation>TECLA DESCONHECIDA</translation>
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
        <translation>SÍMBOLOS &amp;&amp; PONTUAÇÃO</translation>
    </message>
    <message>
        <source>NAVIGATION KEYS</source>
        <translation>TECLAS DE NAVEGAÇÃO</translation>
    </message>
    <message>
        <source>MODIFIER</source>
        <translation>MODIFICADORES</translation>
    </message>
    <message>
        <source>FUNCTION KEYS</source>
        <translation>TECLAS DE FUNÇÃO</translation>
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
        <translation>MACROS PRÓPRIAS</translation>
    </message>
    <message>
        <source>CREATE NEW MACRO</source>
        <translation>NOVA MACRO</translation>
    </message>
    <message>
        <source>WINDOWS KEYBOARD SHORTCUTS</source>
        <translation>ATALHOS DE TECLADO DO WINDOWS</translation>
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
        <translation>SHIFT</translation>
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
        <translation>+ NOVA MACRO</translation>
    </message>
</context>
<context>
    <name>MediaUi</name>
    <message>
        <source>MULTIMEDIA KEYS</source>
        <translation>TECLAS MULTIMÉDIA</translation>
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
        <translation>Jogos</translation>
    </message>
    <message>
        <source>Creative Application</source>
        <translation>Aplicações criativas</translation>
    </message>
    <message>
        <source>Standard WASD</source>
        <translation>WASD padrão</translation>
    </message>
    <message>
        <source>Standard ESDF</source>
        <translation>ESDF padrão</translation>
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
        <translation>Modo condução</translation>
    </message>
    <message>
        <source>Adv. Flight Mode</source>
        <translation>Modo voo (avanç.)</translation>
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
        <translation>CALIBRAÇÃO DA ZONA MORTA</translation>
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
        <translation>PRESSÃO</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>SIM</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>NÃO</translation>
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
        <translation>ATRIBUIÇÃO DE TECLA</translation>
    </message>
    <message>
        <source>KEY ASSIGNMENT - VANTRIX </source>
        <translation>ATRIBUIÇÃO DE TECLA - VANTRIX </translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>FECHAR</translation>
    </message>
    <message>
        <source>SEARCH</source>
        <translation>PROCURAR</translation>
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
        <translation>BOTÕES DO RATO</translation>
    </message>
    <message>
        <source>MEDIA COMMANDS</source>
        <translation>COMANDOS MULTIMÉDIA</translation>
    </message>
    <message>
        <source>PRESSO FUNCTIONS</source>
        <translation>FUNÇÕES PRESSO</translation>
    </message>
    <message>
        <source>BACKLIGHT</source>
        <translation>ILUMINAÇÃO</translation>
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
        <translation>SIMPLES</translation>
    </message>
    <message>
        <source>ADVANCED</source>
        <translation>AVANÇADO</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>APLICAR</translation>
    </message>
    <message>
        <source>RESET</source>
        <translation>REPOR</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Repor</translation>
    </message>
    <message>
        <source>Are you sure you want to reset?</source>
        <translation>Tem a certeza de que pretende repor?</translation>
    </message>
</context>
</TS>
