<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en_GB">
<context>
    <name>DialogOptions</name>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Localisation</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Informações</translation>
    </message>
    <message>
        <source>Program Startup</source>
        <translation>Inicialização do programa</translation>
    </message>
    <message>
        <source>Restore window layout</source>
        <translation>Restaurar o layout da janela</translation>
    </message>
    <message>
        <source>Restore window position</source>
        <translation>Restaurar a posição da janela</translation>
    </message>
    <message>
        <source>Disable splash screen</source>
        <translation>Desativar a tela de abertura</translation>
    </message>
    <message>
        <source>Check for new versions</source>
        <translation>Verificar novas versões</translation>
    </message>
    <message>
        <source>Automatically check for new versions </source>
        <translation>Verificar novas versões automaticamente </translation>
    </message>
    <message>
        <source>Check now</source>
        <translation>Verificar agora</translation>
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
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Restart the application so the setting can take effect.</source>
        <translation>Reinicie o aplicativo para que a configuração tenha efeito.</translation>
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
        <translation>Verificar atualizações automaticamente</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Avançar</translation>
    </message>
    <message>
        <source>We would like to thank you for your confidence and hope you&apos;ll enjoy our software.</source>
        <translation>Agradecemos a sua confiança e esperamos que goste do nosso software.</translation>
    </message>
    <message>
        <source>Discover more products from us:</source>
        <translation>Conheça outros produtos nossos:</translation>
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
    <name>MainWindow</name>
    <message>
        <source>Web site</source>
        <translation>Site</translation>
    </message>
    <message>
        <source>Calculate Checksum</source>
        <translation>Calcular soma de verificação</translation>
    </message>
    <message>
        <source>Algorithm:</source>
        <translation>Algoritmo:</translation>
    </message>
    <message>
        <source>Available hash algorithms</source>
        <translation>Algoritmos de hash disponíveis</translation>
    </message>
    <message>
        <source>Path:</source>
        <translation>Caminho:</translation>
    </message>
    <message>
        <source>Select target file</source>
        <translation>Selecionar o arquivo</translation>
    </message>
    <message>
        <source>Checksum:</source>
        <translation>Soma:</translation>
    </message>
    <message>
        <source>Generated hash value</source>
        <translation>Valor de hash calculado</translation>
    </message>
    <message>
        <source>Precalculated Checksum</source>
        <translation>Soma de verificação publicada</translation>
    </message>
    <message>
        <source>Paste verification hash value</source>
        <translation>Cole o valor de hash para verificação</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>Two checksums are needed for verification..</source>
        <translation>São necessárias duas somas de verificação..</translation>
    </message>
    <message>
        <source>VALID - Checksums do match</source>
        <translation>VÁLIDO - As somas de verificação coincidem</translation>
    </message>
    <message>
        <source>INVALID - Checksums do not match</source>
        <translation>INVÁLIDO - As somas de verificação não coincidem</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Todos os arquivos</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacidade</translation>
    </message>
    <message>
        <source>Stay On Top</source>
        <translation>Sempre visível</translation>
    </message>
</context>
<context>
    <name>VersionCheck</name>
    <message>
        <source>Okay</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>No updates are available.</source>
        <translation>Nenhuma atualização disponível.</translation>
    </message>
    <message>
        <source>New version available:</source>
        <translation>Nova versão disponível:</translation>
    </message>
    <message>
        <source>Do you want to download the latest version from our website?</source>
        <translation>Deseja baixar a versão mais recente do nosso site?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Não</translation>
    </message>
    <message>
        <source>Version check failed</source>
        <translation>Falha na verificação de versão</translation>
    </message>
    <message>
        <source>Could not connect to server.</source>
        <translation>Não foi possível conectar ao servidor.</translation>
    </message>
    <message>
        <source>Please check your internet/firewall settings or look for yourself at: %1 for a new version.</source>
        <translation>Verifique as configurações de internet e firewall ou consulte você mesmo em %1 se há uma nova versão.</translation>
    </message>
</context>
</TS>
