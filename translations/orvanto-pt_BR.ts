<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>AddButton</name>
    <message>
        <source>There are no files on the clipboard</source>
        <translation>Não há arquivos na área de transferência</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Adicionar pasta</translation>
    </message>
    <message>
        <source>Add files</source>
        <translation>Adicionar arquivos</translation>
    </message>
    <message>
        <source>Add files…</source>
        <translation>Adicionar arquivos…</translation>
    </message>
    <message>
        <source>Add folder…</source>
        <translation>Adicionar pasta…</translation>
    </message>
</context>
<context>
    <name>AllOrNothing</name>
    <message>
        <source>All or nothing</source>
        <translation>Tudo ou nada</translation>
    </message>
    <message>
        <source>All or nothing: a run renames every file of the list, or none</source>
        <translation>Tudo ou nada: uma execução renomeia todos os arquivos da lista ou nenhum</translation>
    </message>
    <message>
        <source>%1: nothing will be renamed, as %2 cannot be</source>
        <translation>%1: nada será renomeado, pois há %2 com problemas</translation>
    </message>
    <message>
        <source>New names so far: %1 of %2. Put everything back, or keep what is done?</source>
        <translation>Novos nomes até agora: %1 de %2. Restaurar tudo ou manter o que foi feito?</translation>
    </message>
    <message>
        <source>Put everything back</source>
        <translation>Restaurar tudo</translation>
    </message>
    <message>
        <source>Keep what is done</source>
        <translation>Manter o que foi feito</translation>
    </message>
    <message>
        <source>Kept</source>
        <extracomment>of the report: files that have the name already which the rules make; a number follows</extracomment>
        <translation>Mantidos</translation>
    </message>
    <message>
        <source>Rename what can be</source>
        <translation>Renomear o que for possível</translation>
    </message>
    <message>
        <source>Nothing was renamed, as not every file can be.</source>
        <translation>Nada foi renomeado, pois nem todos os arquivos podem ser renomeados.</translation>
    </message>
    <message>
        <source>Nothing was renamed: one file failed, and the others have their old names again.</source>
        <translation>Nada foi renomeado: um arquivo falhou, e os outros têm de novo o nome antigo.</translation>
    </message>
    <message>
        <source>Nothing was renamed: the run was cancelled.</source>
        <translation>Nada foi renomeado: a execução foi cancelada.</translation>
    </message>
    <message>
        <source>The run could not be put back as a whole; files that do not have their old names: %1</source>
        <translation>Não foi possível restaurar tudo; arquivos sem o nome antigo: %1</translation>
    </message>
    <message>
        <source>Nothing was renamed: the journal of the run cannot be written.</source>
        <translation>Nada foi renomeado: não é possível gravar o diário da execução.</translation>
    </message>
    <message>
        <source>The run is not finished yet.</source>
        <translation>A execução ainda não foi concluída.</translation>
    </message>
    <message>
        <source>Could not put back file &apos;%1&apos;: it is called &apos;%2&apos;</source>
        <translation>Não foi possível restaurar o arquivo &apos;%1&apos;: ele se chama &apos;%2&apos;</translation>
    </message>
</context>
<context>
    <name>DialogNotice</name>
    <message>
        <source>Don&apos;t show this message again.</source>
        <translation>Não mostrar esta mensagem novamente.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Advice</source>
        <translation>Aviso</translation>
    </message>
</context>
<context>
    <name>DialogSettings</name>
    <message>
        <source>Global Settings</source>
        <translation>Configurações gerais</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Add-ons</source>
        <translation>Extensões</translation>
    </message>
    <message>
        <source>Localisation</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Donate</source>
        <translation>Doar</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Sobre</translation>
    </message>
    <message>
        <source>Requires registry entry</source>
        <translation>Requer uma entrada no registro</translation>
    </message>
    <message>
        <source>Load on system start-up</source>
        <translation>Iniciar com o sistema</translation>
    </message>
    <message>
        <source>Minimize on start</source>
        <translation>Minimizar ao iniciar</translation>
    </message>
    <message>
        <source>Disable splash screen</source>
        <translation>Desativar a tela de abertura</translation>
    </message>
    <message>
        <source>Restore window layout</source>
        <translation>Restaurar a disposição da janela</translation>
    </message>
    <message>
        <source>Restore window geometry</source>
        <translation>Restaurar o tamanho e a posição da janela</translation>
    </message>
    <message>
        <source>Minimize to tray icon</source>
        <translation>Minimizar para a bandeja do sistema</translation>
    </message>
    <message>
        <source>Automatically check for new version</source>
        <translation>Procurar nova versão automaticamente</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Procurar agora</translation>
    </message>
    <message>
        <source>Plugins</source>
        <translation>Plugins</translation>
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
        <source>Translation: Kavrondel</source>
        <translation>Tradução: Kavrondel</translation>
    </message>
    <message>
        <source>Support this project</source>
        <translation>Apoie este projeto</translation>
    </message>
    <message>
        <source>This application is freeware and will always remain free. </source>
        <translation>Este aplicativo é gratuito e sempre será. </translation>
    </message>
    <message>
        <source>By making a small contribution you can help us in developing, upgrading and maintaining our products.</source>
        <translation>Com uma pequena contribuição, você pode nos ajudar a desenvolver, melhorar e manter nossos produtos.</translation>
    </message>
    <message>
        <source>Application Directory</source>
        <translation>Pasta do aplicativo</translation>
    </message>
    <message>
        <source>Application Data Directory</source>
        <translation>Pasta de dados do aplicativo</translation>
    </message>
    <message>
        <source>Visit our website</source>
        <translation>Visitar nosso site</translation>
    </message>
    <message>
        <source>Send us feedback</source>
        <translation>Enviar comentários</translation>
    </message>
    <message>
        <source>&lt;b style=&apos;color:#888&apos;&gt;Made by Kavrondel&lt;/b&gt;</source>
        <translation>&lt;b style=&apos;color:#888&apos;&gt;Desenvolvido por Kavrondel&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>The command completed successfully.</source>
        <translation>O comando foi concluído com sucesso.</translation>
    </message>
    <message>
        <source>The command failed to execute.</source>
        <translation>Não foi possível executar o comando.</translation>
    </message>
    <message>
        <source>Make sure you have administrator rights.</source>
        <translation>Verifique se você tem direitos de administrador.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
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
        <source>Automatically check for new versions</source>
        <translation>Procurar novas versões automaticamente</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Avançar</translation>
    </message>
    <message>
        <source>We would like to thank you for your confidence and hope you&apos;ll enjoy this software.</source>
        <translation>Agradecemos a sua confiança e esperamos que você goste deste programa.</translation>
    </message>
    <message>
        <source>Discover more products from us:</source>
        <translation>Conheça nossos outros produtos:</translation>
    </message>
    <message>
        <source>We are looking for native speaking translators.</source>
        <translation>Procuramos tradutores nativos.</translation>
    </message>
    <message>
        <source>Please contact us at: </source>
        <translation>Entre em contato conosco em: </translation>
    </message>
</context>
<context>
    <name>ExampleRules</name>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Number photos</source>
        <translation>Numerar fotos</translation>
    </message>
    <message>
        <source>Blanks for underscores</source>
        <translation>Espaços no lugar de sublinhados</translation>
    </message>
    <message>
        <source>Tidy upper and lower case</source>
        <translation>Arrumar maiúsculas e minúsculas</translation>
    </message>
    <message>
        <source>Without camera prefixes</source>
        <translation>Sem prefixos da câmera</translation>
    </message>
    <message>
        <source>Dates as 2024-01-31</source>
        <translation>Datas como 2024-01-31</translation>
    </message>
    <message>
        <source>Track numbers with two digits</source>
        <translation>Números de faixa com dois dígitos</translation>
    </message>
    <message>
        <source>&quot;Title - Artist&quot; for &quot;Artist - Title&quot;</source>
        <translation>“Título - Artista” no lugar de “Artista - Título”</translation>
    </message>
</context>
<context>
    <name>ExplorerModel</name>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
</context>
<context>
    <name>Fates</name>
    <message>
        <source>the file is not there</source>
        <translation>o arquivo não existe</translation>
    </message>
    <message>
        <source>the new name is empty or only dots</source>
        <translation>o novo nome está vazio ou só tem pontos</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>essa pasta não existe</translation>
    </message>
    <message>
        <source>the file system does not take the new name</source>
        <translation>o sistema de arquivos não aceita o novo nome</translation>
    </message>
    <message>
        <source>the new name is too long</source>
        <translation>o novo nome é longo demais</translation>
    </message>
    <message>
        <source>nothing can be renamed in this folder</source>
        <translation>nada pode ser renomeado nesta pasta</translation>
    </message>
    <message>
        <source>the new name holds half a character</source>
        <translation>o novo nome contém meio caractere</translation>
    </message>
    <message>
        <source>the system refused</source>
        <translation>o sistema recusou</translation>
    </message>
    <message>
        <source>the name is taken</source>
        <translation>o nome já está em uso</translation>
    </message>
    <message>
        <source>row %1 takes the name %2</source>
        <translation>a linha %1 recebe o nome %2</translation>
    </message>
    <message>
        <source>row %1 still has the name %2</source>
        <translation>a linha %1 ainda tem o nome %2</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 arquivo</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 arquivos</translation>
    </message>
    <message>
        <source>1 keeps its name</source>
        <translation>1 mantém o nome</translation>
    </message>
    <message>
        <source>%1 keep their names</source>
        <translation>%1 mantêm o nome</translation>
    </message>
    <message>
        <source>checking…</source>
        <translation>verificando…</translation>
    </message>
    <message>
        <source>Go to the next row in trouble (F8)</source>
        <translation>Ir para a próxima linha com problema (F8)</translation>
    </message>
    <message>
        <source>%1, %2 selected</source>
        <translation>%1, seleção: %2</translation>
    </message>
    <message>
        <source>%1: %2 will be renamed, %3, %4 cannot</source>
        <translation>%1: %2 com novo nome, %3, %4 com problemas</translation>
    </message>
    <message>
        <source>%1: %2 will be renamed, %3, %4 cannot, %5 unknown</source>
        <translation>%1: %2 com novo nome, %3, %4 com problemas, %5 sem previsão</translation>
    </message>
    <message>
        <source>Keeps its name.</source>
        <translation>Mantém o nome.</translation>
    </message>
    <message>
        <source>Cannot be told before the run.</source>
        <translation>Não é possível saber antes de renomear.</translation>
    </message>
    <message>
        <source>Stays: %1.</source>
        <translation>Fica como está: %1.</translation>
    </message>
    <message>
        <source>Moves to the folder %1.</source>
        <translation>Será movido para a pasta %1.</translation>
    </message>
    <message>
        <source>The new name leads to the folder %1.</source>
        <translation>O novo nome leva à pasta %1.</translation>
    </message>
    <message>
        <source>Not renamed: %1.</source>
        <translation>Não renomeado: %1.</translation>
    </message>
    <message>
        <source>Show details…</source>
        <translation>Mostrar detalhes…</translation>
    </message>
    <message>
        <source>Not Renamed</source>
        <translation>Arquivos não renomeados</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>Novo nome</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Pasta</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>another file has its name</source>
        <translation>outro arquivo tem o nome dele</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Rules</source>
        <translation>Regras</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Adicionar</translation>
    </message>
    <message>
        <source>Active Rules</source>
        <translation>Regras ativas</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Regra</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propriedades</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Limpar a lista</translation>
    </message>
    <message>
        <source>File List</source>
        <translation>Lista de arquivos</translation>
    </message>
    <message>
        <source>Name Filter</source>
        <translation>Filtro de nomes</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Pré-visualizar</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renomear</translation>
    </message>
    <message>
        <source>Show full path</source>
        <translation>Mostrar o caminho completo</translation>
    </message>
    <message>
        <source>Application Log</source>
        <translation>Log do aplicativo</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensagem</translation>
    </message>
    <message>
        <source>Save logs</source>
        <translation>Salvar os logs</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Include debug messages</source>
        <translation>Incluir mensagens de depuração</translation>
    </message>
    <message>
        <source>Debug</source>
        <translation>Depuração</translation>
    </message>
    <message>
        <source>Open log directory</source>
        <translation>Abrir a pasta de logs</translation>
    </message>
    <message>
        <source>Global Settings</source>
        <translation>Configurações gerais</translation>
    </message>
    <message>
        <source>File Explorer</source>
        <translation>Explorador de arquivos</translation>
    </message>
    <message>
        <source>Please wait</source>
        <translation>Aguarde</translation>
    </message>
    <message>
        <source>Acquire files</source>
        <translation>Obtendo arquivos</translation>
    </message>
    <message>
        <source>File renaming started</source>
        <translation>Renomeação de arquivos iniciada</translation>
    </message>
    <message>
        <source>Could not rename file</source>
        <translation>Não foi possível renomear o arquivo</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Processed</source>
        <translation>Processados</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Falhas</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Relatório</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Please support us if you like this software and want to keep our service alive.</source>
        <translation>Apoie-nos se você gosta deste programa e quer manter nosso serviço no ar.</translation>
    </message>
    <message>
        <source>Thank you!</source>
        <translation>Obrigado!</translation>
    </message>
    <message>
        <source>Application has been minimized.</source>
        <translation>O aplicativo foi minimizado.</translation>
    </message>
    <message>
        <source>Click the tray icon to show.</source>
        <translation>Clique no ícone da bandeja para mostrá-lo.</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacidade</translation>
    </message>
    <message>
        <source>Stay on Top</source>
        <translation>Sempre visível</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Mover para cima</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Mover para baixo</translation>
    </message>
    <message>
        <source>Undo the last run</source>
        <translation>Desfazer a última execução</translation>
    </message>
    <message>
        <source>Undo, redo and earlier runs</source>
        <translation>Desfazer, refazer e execuções anteriores</translation>
    </message>
    <message>
        <source>Add files and folders</source>
        <translation>Adicionar arquivos e pastas</translation>
    </message>
    <message>
        <source>Sort the files</source>
        <translation>Ordenar os arquivos</translation>
    </message>
    <message>
        <source>Drop files or folders here, or press Ctrl+O</source>
        <translation>Solte arquivos ou pastas aqui ou pressione Ctrl+O</translation>
    </message>
    <message>
        <source>Choose a kind of rule above, fill in its fields and press &quot;%1&quot;</source>
        <extracomment>%1 is the text of the button &quot;Add&quot;</extracomment>
        <translation>Escolha acima um tipo de regra, preencha os campos e pressione “%1”</translation>
    </message>
</context>
<context>
    <name>Places</name>
    <message>
        <source>Home</source>
        <translation>Pasta pessoal</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Área de trabalho</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Imagens</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Música</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documentos</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Downloads</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Drive</source>
        <translation>Unidade</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Pasta</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>Arquivo %1</translation>
    </message>
</context>
<context>
    <name>QAbstractSocket</name>
    <message>
        <source>Socket operation timed out</source>
        <translation>Tempo esgotado em uma operação de socket</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Selecionar tudo</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Aumentar</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>Di&amp;minuir</translation>
    </message>
</context>
<context>
    <name>QDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>QDockWidget</name>
    <message>
        <source>Float</source>
        <translation>Desencaixar</translation>
    </message>
    <message>
        <source>Undocks and re-attaches the dock widget</source>
        <translation>Desencaixa ou reencaixa o painel</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Closes the dock widget</source>
        <translation>Fecha o painel</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Excluir</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Nova pasta</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Renomear</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Salvar</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Todos os arquivos (*)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Mudar para a visualização detalhada</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Mudar para a visualização em lista</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Criar nova pasta</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Criar uma nova pasta</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Visualização detalhada</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Nome do arquivo:</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Arquivos</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Arquivos do tipo:</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Avançar</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Ir para trás</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Ir para a frente</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Ir para a pasta superior</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Visualização em lista</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Lista de locais e favoritos</translation>
    </message>
    <message>
        <source>Look in:</source>
        <translation>Procurar em:</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Pasta superior</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Mostrar arquivos &amp;ocultos</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Barra lateral</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Pasta:</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 já existe.
Deseja substituí-lo?</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Arquivo não encontrado.
Verifique o nome do arquivo.</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Mostrar </translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Escolher</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>Pastas</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Pasta não encontrada.
Verifique se o nome está correto.</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Computer</source>
        <translation>Computador</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Data de modificação</translation>
    </message>
</context>
<context>
    <name>QHttp</name>
    <message>
        <source>Connection refused</source>
        <translation>Conexão recusada</translation>
    </message>
    <message>
        <source>Connection closed</source>
        <translation>Conexão encerrada</translation>
    </message>
    <message>
        <source>Host %1 not found</source>
        <translation>Servidor %1 não encontrado</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Desfazer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Refazer</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Recor&amp;tar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Co&amp;lar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Selecionar tudo</translation>
    </message>
</context>
<context>
    <name>QNativeSocketEngine</name>
    <message>
        <source>Host unreachable</source>
        <translation>Servidor inacessível</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>Rede inacessível</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sim</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Tentar novamente</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Não</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Rolar até aqui</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Borda esquerda</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Início</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Borda direita</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Fim</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Página à esquerda</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Página acima</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Página à direita</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Página abaixo</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Rolar para a esquerda</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Rolar para cima</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Rolar para a direita</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Rolar para baixo</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Seta para cima</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Seta para baixo</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Enter</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Copiar o endereço do &amp;link</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Selecionar tudo</translation>
    </message>
</context>
<context>
    <name>RuleEdit</name>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Put these values in the place of the rule</source>
        <translation>Colocar estes valores no lugar da regra</translation>
    </message>
    <message>
        <source>Leave the rule as it is</source>
        <translation>Deixar a regra como está</translation>
    </message>
</context>
<context>
    <name>RuleSetDialog</name>
    <message>
        <source>Rule sets</source>
        <translation>Conjuntos de regras</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renomear</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importar…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportar…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>RuleSetMenu</name>
    <message>
        <source>Rule sets</source>
        <translation>Conjuntos de regras</translation>
    </message>
    <message>
        <source>Save the active rules under a name, and take them up again</source>
        <translation>Salvar as regras ativas com um nome e retomá-las</translation>
    </message>
    <message>
        <source>The rules were changed since.</source>
        <translation>As regras foram alteradas desde então.</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Últimas usadas</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Salvar como…</translation>
    </message>
    <message>
        <source>Manage…</source>
        <translation>Gerenciar…</translation>
    </message>
    <message>
        <source>Open file…</source>
        <translation>Abrir arquivo…</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>Exemplos</translation>
    </message>
</context>
<context>
    <name>RuleSetQuestions</name>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Rule sets</source>
        <translation>Conjuntos de regras</translation>
    </message>
    <message>
        <source>The active rules are not saved. Replace them?</source>
        <translation>As regras ativas não estão salvas. Substituí-las?</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Substituir</translation>
    </message>
    <message>
        <source>There is a rule set &quot;%1&quot; already. Replace it?</source>
        <translation>Já existe um conjunto de regras “%1”. Substituí-lo?</translation>
    </message>
    <message>
        <source>Delete the rule set &quot;%1&quot;?</source>
        <translation>Excluir o conjunto de regras “%1”?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
    <message>
        <source>Save rule set</source>
        <translation>Salvar conjunto de regras</translation>
    </message>
    <message>
        <source>Name of the rule set</source>
        <translation>Nome do conjunto de regras</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Open rule set</source>
        <translation>Abrir conjunto de regras</translation>
    </message>
    <message>
        <source>No rules were loaded from %1:</source>
        <translation>Nenhuma regra foi carregada de %1:</translation>
    </message>
    <message>
        <source>The rule set could not be saved:</source>
        <translation>Não foi possível salvar o conjunto de regras:</translation>
    </message>
    <message>
        <source>The rule set could not be deleted:</source>
        <translation>Não foi possível excluir o conjunto de regras:</translation>
    </message>
    <message>
        <source>The rule set could not be renamed:</source>
        <translation>Não foi possível renomear o conjunto de regras:</translation>
    </message>
</context>
<context>
    <name>RuleSets</name>
    <message>
        <source>rule %1, %2</source>
        <translation>regra %1, %2</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>deve ser um objeto</translation>
    </message>
    <message>
        <source>too large</source>
        <translation>grande demais</translation>
    </message>
    <message>
        <source>line %1 is no JSON</source>
        <translation>a linha %1 não é JSON</translation>
    </message>
    <message>
        <source>must be a text of at most %1 characters</source>
        <translation>deve ser um texto de no máximo %1 caracteres</translation>
    </message>
    <message>
        <source>must be a name, without blanks at its ends</source>
        <translation>deve ser um nome sem espaços no início nem no fim</translation>
    </message>
    <message>
        <source>must be a whole number from %1 to %2</source>
        <translation>deve ser um número inteiro de %1 a %2</translation>
    </message>
    <message>
        <source>must be true or false</source>
        <translation>deve ser true ou false</translation>
    </message>
    <message>
        <source>must be %1</source>
        <translation>deve ser %1</translation>
    </message>
    <message>
        <source>must be one of %1</source>
        <translation>deve ser um destes valores: %1</translation>
    </message>
    <message>
        <source>must be a list of at most %1 rules</source>
        <translation>deve ser uma lista de no máximo %1 regras</translation>
    </message>
    <message>
        <source>a newer version of the program wrote this file</source>
        <translation>este arquivo foi gravado por uma versão mais recente do programa</translation>
    </message>
    <message>
        <source>no such field is known</source>
        <translation>este campo não é conhecido</translation>
    </message>
    <message>
        <source>is missing</source>
        <translation>está faltando</translation>
    </message>
    <message>
        <source>is no file</source>
        <translation>não é um arquivo</translation>
    </message>
    <message>
        <source>another rule set has this name</source>
        <translation>outro conjunto de regras tem este nome</translation>
    </message>
    <message>
        <source>the file with the old name could not be removed</source>
        <translation>não foi possível remover o arquivo com o nome antigo</translation>
    </message>
</context>
<context>
    <name>Rules</name>
    <message>
        <source>Direction</source>
        <translation>Direção</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Início</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fim</translation>
    </message>
    <message>
        <source>Change Case</source>
        <translation>Maiúsculas/minúsculas</translation>
    </message>
    <message>
        <source>Uppercase letters</source>
        <translation>Letras maiúsculas</translation>
    </message>
    <message>
        <source>Lowercase letters</source>
        <translation>Letras minúsculas</translation>
    </message>
    <message>
        <source>Uppercase first letter of each word</source>
        <translation>Primeira letra de cada palavra em maiúscula</translation>
    </message>
    <message>
        <source>Ignore File Extension</source>
        <translation>Ignorar a extensão do arquivo</translation>
    </message>
    <message>
        <source>Enumerate</source>
        <translation>Numerar</translation>
    </message>
    <message>
        <source>Start Number</source>
        <translation>Número inicial</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posição</translation>
    </message>
    <message>
        <source>Leading Zeros</source>
        <translation>Zeros à esquerda</translation>
    </message>
    <message>
        <source>Insert Text</source>
        <translation>Inserir texto</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Substituir</translation>
    </message>
    <message>
        <source>Replace what</source>
        <translation>Localizar</translation>
    </message>
    <message>
        <source>Replace with</source>
        <translation>Substituir por</translation>
    </message>
    <message>
        <source>Regular Expression</source>
        <translation>Expressão regular</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Encurtar</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Comprimento</translation>
    </message>
    <message>
        <source>No valid pattern: it will change nothing.</source>
        <translation>O padrão não é válido: não mudará nada.</translation>
    </message>
    <message>
        <source>This pattern would take too long: it will change nothing.</source>
        <translation>Este padrão levaria tempo demais: não mudará nada.</translation>
    </message>
    <message>
        <source>Upper and lower case differ; as much as possible is found.</source>
        <translation>Maiúsculas e minúsculas são diferenciadas; encontra-se o máximo possível.</translation>
    </message>
    <message>
        <source>any character</source>
        <translation>qualquer caractere</translation>
    </message>
    <message>
        <source>the dot itself</source>
        <translation>o próprio ponto</translation>
    </message>
    <message>
        <source>one of these characters</source>
        <translation>um destes caracteres</translation>
    </message>
    <message>
        <source>any other character</source>
        <translation>qualquer outro caractere</translation>
    </message>
    <message>
        <source>a digit</source>
        <translation>um dígito</translation>
    </message>
    <message>
        <source>a letter, a digit or _</source>
        <translation>uma letra, um dígito ou _</translation>
    </message>
    <message>
        <source>a blank</source>
        <translation>um espaço</translation>
    </message>
    <message>
        <source>any number of a, also none</source>
        <translation>qualquer número de a, inclusive nenhum</translation>
    </message>
    <message>
        <source>one a or more</source>
        <translation>um a ou mais</translation>
    </message>
    <message>
        <source>one a or none</source>
        <translation>um a ou nenhum</translation>
    </message>
    <message>
        <source>two to four a</source>
        <translation>de dois a quatro a</translation>
    </message>
    <message>
        <source>either ab or cd</source>
        <translation>ou ab ou cd</translation>
    </message>
    <message>
        <source>the beginning of the name</source>
        <translation>o início do nome</translation>
    </message>
    <message>
        <source>the end of the name</source>
        <translation>o fim do nome</translation>
    </message>
    <message>
        <source>a group: \1 in the new text is what it found</source>
        <translation>um grupo: \1 no novo texto é o que ele encontrou</translation>
    </message>
</context>
<context>
    <name>Runs</name>
    <message>
        <source>An undo was interrupted; what it left can still be taken back</source>
        <translation>Uma ação de desfazer foi interrompida; o restante ainda pode ser desfeito</translation>
    </message>
    <message>
        <source>The run of %1 was interrupted; what it renamed can be taken back</source>
        <translation>A execução de %1 foi interrompida; as renomeações feitas podem ser desfeitas</translation>
    </message>
    <message>
        <source>This run cannot be undone</source>
        <translation>Esta execução não pode ser desfeita</translation>
    </message>
    <message>
        <source>The last renames of this run cannot be undone: %1</source>
        <translation>As últimas renomeações desta execução não podem ser desfeitas: %1</translation>
    </message>
    <message>
        <source>%1 folders</source>
        <translation>%1 pastas</translation>
    </message>
    <message>
        <source>Take back 1 rename of %1 in %2</source>
        <translation>Desfazer 1 renomeação (%1) em %2</translation>
    </message>
    <message>
        <source>Take back %1 renames of %2 in %3</source>
        <translation>Desfazer %1 renomeações (%2) em %3</translation>
    </message>
    <message>
        <source>Another window of the program is at this run.</source>
        <translation>Outra janela do programa está trabalhando com esta execução.</translation>
    </message>
    <message>
        <source>This run is of another machine, or of a newer version of the program.</source>
        <translation>Esta execução é de outro computador ou de uma versão mais recente do programa.</translation>
    </message>
    <message>
        <source>A later run renamed some of these files. Take that one back first.</source>
        <translation>Uma execução posterior renomeou alguns destes arquivos. Desfaça primeiro aquela.</translation>
    </message>
    <message>
        <source>Nothing of this run is left to be taken back.</source>
        <translation>Não resta nada desta execução para desfazer.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Desfazer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Refazer</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Taking back started</source>
        <translation>Ação de desfazer iniciada</translation>
    </message>
    <message>
        <source>Could not take back file &apos;%1&apos;: %2</source>
        <translation>Não foi possível desfazer a renomeação do arquivo &apos;%1&apos;: %2</translation>
    </message>
    <message>
        <source>Take back %1 renames of %2 in %3 folders</source>
        <translation>Desfazer %1 renomeações (%2) em %3 pastas</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Execuções</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Quando</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Renomeados</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Pasta</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>partly taken back</source>
        <translation>desfeita em parte</translation>
    </message>
    <message>
        <source>taken back</source>
        <translation>desfeita</translation>
    </message>
    <message>
        <source>complete</source>
        <translation>completa</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>cancelada</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>interrompida</translation>
    </message>
    <message>
        <source>in hand</source>
        <translation>em andamento</translation>
    </message>
    <message>
        <source>of another machine</source>
        <translation>de outro computador</translation>
    </message>
    <message>
        <source>of a newer version</source>
        <translation>de uma versão mais recente</translation>
    </message>
    <message>
        <source>unreadable</source>
        <translation>ilegível</translation>
    </message>
    <message>
        <source>%1, touched by a later run</source>
        <translation>%1, alterada por uma execução posterior</translation>
    </message>
    <message>
        <source>The run of %1 renamed some of these files. Take that one back first.</source>
        <translation>A execução de %1 renomeou alguns destes arquivos. Desfaça primeiro aquela.</translation>
    </message>
    <message>
        <source>Take back</source>
        <translation>Desfazer</translation>
    </message>
    <message>
        <source>Show files</source>
        <translation>Mostrar arquivos</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Esquecer</translation>
    </message>
    <message>
        <source>Forget all</source>
        <translation>Esquecer todas</translation>
    </message>
    <message>
        <source>Forget all runs? The files stay as they are, and no run can be taken back any more.</source>
        <translation>Esquecer todas as execuções? Os arquivos ficam como estão e nenhuma execução poderá mais ser desfeita.</translation>
    </message>
    <message>
        <source>Files of the Run of %1</source>
        <translation>Arquivos da execução de %1</translation>
    </message>
    <message>
        <source>Old name</source>
        <translation>Nome antigo</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>Novo nome</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Agora</translation>
    </message>
    <message>
        <source>has its new name</source>
        <translation>tem o nome novo</translation>
    </message>
    <message>
        <source>has its old name</source>
        <translation>tem o nome antigo</translation>
    </message>
    <message>
        <source>another file is there</source>
        <translation>há outro arquivo ali</translation>
    </message>
    <message>
        <source>is not there</source>
        <translation>não está lá</translation>
    </message>
    <message>
        <source>Runs…</source>
        <translation>Execuções…</translation>
    </message>
    <message>
        <source>This run was interrupted; &quot;Runs…&quot; can finish it, too</source>
        <translation>Esta execução foi interrompida; “Execuções…” também pode concluí-la</translation>
    </message>
    <message>
        <source>This run was to rename all files or none, and was interrupted. Finish it, put everything back, or leave the files as they are.</source>
        <translation>Esta execução deveria renomear todos os arquivos ou nenhum e foi interrompida. Você pode concluí-la, restaurar tudo ou deixar os arquivos como estão.</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Concluir</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Deixar assim</translation>
    </message>
    <message>
        <source>Finishing a run started</source>
        <translation>Iniciada a conclusão de uma execução</translation>
    </message>
    <message>
        <source>The run of %1 was interrupted; &quot;Runs…&quot; can finish it or put it back</source>
        <translation>A execução de %1 foi interrompida; “Execuções…” pode concluí-la ou restaurar tudo</translation>
    </message>
</context>
<context>
    <name>SortMenu</name>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Caminho</translation>
    </message>
    <message>
        <source>Extension</source>
        <translation>Extensão</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Time of modification</source>
        <translation>Data de modificação</translation>
    </message>
    <message>
        <source>Order of adding</source>
        <translation>Ordem de adição</translation>
    </message>
    <message>
        <source>%1, ascending</source>
        <translation>%1, crescente</translation>
    </message>
    <message>
        <source>%1, descending</source>
        <translation>%1, decrescente</translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Restaurar</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Sair</translation>
    </message>
</context>
<context>
    <name>VersionCheck</name>
    <message>
        <source>Data transmission failure</source>
        <translation>Falha na transmissão de dados</translation>
    </message>
    <message>
        <source>Version check failed</source>
        <translation>Falha ao verificar a versão</translation>
    </message>
    <message>
        <source>Error connecting to server.</source>
        <translation>Erro ao conectar ao servidor.</translation>
    </message>
    <message>
        <source>Please check manually at:</source>
        <translation>Verifique manualmente em:</translation>
    </message>
    <message>
        <source>There is a new version available!</source>
        <translation>Há uma nova versão disponível!</translation>
    </message>
    <message>
        <source>Would you like to download it now?</source>
        <translation>Deseja baixá-la agora?</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Baixar</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Mais tarde</translation>
    </message>
    <message>
        <source>What&apos;s new?</source>
        <translation>O que há de novo?</translation>
    </message>
    <message>
        <source>Skip Version</source>
        <translation>Ignorar esta versão</translation>
    </message>
    <message>
        <source>You are using the latest version.</source>
        <translation>Você está usando a versão mais recente.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
</TS>
