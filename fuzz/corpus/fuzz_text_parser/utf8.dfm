object Größe: TÄ
 a='漢字 😀'
end